#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for VERS.
#define FIELDS(FIELD)
MESSAGE(GetVersMsg, m_getVersMsg, GET_VERS)

#include "macros-off.h"
