#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for FREQ_RANGE_ATTEN.
#define FIELDS(FIELD)
MESSAGE(GetFreqRangeAttenMsg, m_getFreqRangeAttenMsg, GET_FREQ_RANGE_ATTEN)

#include "macros-off.h"
