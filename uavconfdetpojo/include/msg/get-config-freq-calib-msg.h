#pragma once

#include "msg/msg.h"

/// Asks for CONFIG_FREQ_CALIB.
MESSAGE(GetConfigFreqCalibMsg, m_getConfigFreqCalibMsg, GET_CONFIG_FREQ_CALIB, NO_FIELDS)
