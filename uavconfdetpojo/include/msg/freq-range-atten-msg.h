#pragma once

#include "master-freq-mode.h"
#include "msg/msg.h"

#include <map>

#include "macros-on.h"

using BandAttenuations = std::map<MasterFreqModeEnum, int>;

/// The attenuation of each band.
#define FIELDS(FIELD) FIELD(BandAttenuations, attens, Attens)

MESSAGE(FreqRangeAttenMsg, m_freqRangeAttenMsg, FREQ_RANGE_ATTEN)

#include "macros-off.h"
