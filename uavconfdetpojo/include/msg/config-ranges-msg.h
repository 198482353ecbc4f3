#pragma once

#include "freq-mode-setting.h"
#include "master-freq-mode.h"
#include "msg/msg.h"

#include <map>
#include <memory>

using BandSettings = std::map<MasterFreqModeEnum, std::shared_ptr<FreqModeSetting>>;

/// The settings of each band.
#define CONFIG_RANGES_MSG_FIELDS(FIELD) FIELD(BandSettings, cfgRanges, CfgRanges)

MESSAGE(ConfigRangesMsg, m_configRangesMsg, CONFIG_RANGES, CONFIG_RANGES_MSG_FIELDS)
