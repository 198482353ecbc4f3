#pragma once

#include "master-freq-mode.h"
#include "msg/msg.h"

#include <map>

using BandAttenuations = std::map<MasterFreqModeEnum, int>;

/// The attenuation of each band.
#define FREQ_RANGE_ATTEN_MSG_FIELDS(FIELD) FIELD(BandAttenuations, attens, Attens)

MESSAGE(FreqRangeAttenMsg, m_freqRangeAttenMsg, FREQ_RANGE_ATTEN, FREQ_RANGE_ATTEN_MSG_FIELDS)
