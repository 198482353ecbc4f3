#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for STATE.
#define FIELDS(FIELD)
MESSAGE(GetStateMsg, m_getStateMsg, GET_STATE)

#include "macros-off.h"
