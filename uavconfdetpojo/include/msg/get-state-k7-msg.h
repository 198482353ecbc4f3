#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for STATE_K7.
#define FIELDS(FIELD)
MESSAGE(GetStateK7Msg, m_getStateK7Msg, GET_STATE_K7)

#include "macros-off.h"
