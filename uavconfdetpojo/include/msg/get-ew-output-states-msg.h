#pragma once

#include "msg/msg.h"

/// Asks for EW_OUTPUT_STATES.
MESSAGE(GetEwOutputStatesMsg, m_getEwOutputStatesMsg, GET_EW_OUTPUT_STATES, NO_FIELDS)
