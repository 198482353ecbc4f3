#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for CONFIG_RANGES.
#define FIELDS(FIELD)
MESSAGE(GetConfigRangesMsg, m_getConfigRangesMsg, GET_CONFIG_RANGES)

#include "macros-off.h"
