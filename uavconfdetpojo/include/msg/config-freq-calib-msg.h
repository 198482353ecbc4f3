#pragma once

#include "freq-calib.h"
#include "master-freq-mode.h"
#include "msg/msg.h"

#include <map>
#include <memory>

#include "macros-on.h"

using BandCalibrations = std::map<MasterFreqModeEnum, std::shared_ptr<FreqCalib>>;

/// The frequency calibration of each band.
#define FIELDS(FIELD) FIELD(BandCalibrations, freqModesCalib, FreqModesCalib)

MESSAGE(ConfigFreqCalibMsg, m_configFreqCalibMsg, CONFIG_FREQ_CALIB)

#include "macros-off.h"
