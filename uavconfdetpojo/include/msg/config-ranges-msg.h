#pragma once

#include "freq-mode-setting.h"
#include "master-freq-mode.h"
#include "msg/msg.h"

#include <map>
#include <memory>

#include "macros-on.h"

using BandSettings = std::map<MasterFreqModeEnum, std::shared_ptr<FreqModeSetting>>;

/// The settings of each band.
#define FIELDS(FIELD) FIELD(BandSettings, cfgRanges, CfgRanges)

MESSAGE(ConfigRangesMsg, m_configRangesMsg, CONFIG_RANGES)

#include "macros-off.h"
