#pragma once

#include "msg/msg.h"

/// Asks for CONFIG_RANGES.
MESSAGE(GetConfigRangesMsg, m_getConfigRangesMsg, GET_CONFIG_RANGES, NO_FIELDS)
