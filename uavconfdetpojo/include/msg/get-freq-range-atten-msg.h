#pragma once

#include "msg/msg.h"

/// Asks for FREQ_RANGE_ATTEN.
MESSAGE(GetFreqRangeAttenMsg, m_getFreqRangeAttenMsg, GET_FREQ_RANGE_ATTEN, NO_FIELDS)
