#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for EW_OUTPUT_STATES.
#define FIELDS(FIELD)
MESSAGE(GetEwOutputStatesMsg, m_getEwOutputStatesMsg, GET_EW_OUTPUT_STATES)

#include "macros-off.h"
