#pragma once

#include "msg/msg.h"

/// Asks for STATE.
MESSAGE(GetStateMsg, m_getStateMsg, GET_STATE, NO_FIELDS)
