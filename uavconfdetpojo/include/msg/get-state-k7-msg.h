#pragma once

#include "msg/msg.h"

/// Asks for STATE_K7.
MESSAGE(GetStateK7Msg, m_getStateK7Msg, GET_STATE_K7, NO_FIELDS)
