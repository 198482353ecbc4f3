#pragma once

#include "freq-calib.h"
#include "master-freq-mode.h"
#include "msg/msg.h"

#include <map>
#include <memory>

using BandCalibrations = std::map<MasterFreqModeEnum, std::shared_ptr<FreqCalib>>;

/// The frequency calibration of each band.
#define CONFIG_FREQ_CALIB_MSG_FIELDS(FIELD) FIELD(BandCalibrations, freqModesCalib, FreqModesCalib)

MESSAGE(ConfigFreqCalibMsg, m_configFreqCalibMsg, CONFIG_FREQ_CALIB, CONFIG_FREQ_CALIB_MSG_FIELDS)
