#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for CONFIG_FREQ_CALIB.
#define FIELDS(FIELD)
MESSAGE(GetConfigFreqCalibMsg, m_getConfigFreqCalibMsg, GET_CONFIG_FREQ_CALIB)

#include "macros-off.h"
