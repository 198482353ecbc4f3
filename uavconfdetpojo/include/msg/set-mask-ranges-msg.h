#pragma once

#include "master-freq-mode.h"
#include "msg/msg.h"

#include <vector>

#include "macros-on.h"

/// Asks the device to mask the named bands.
#define FIELDS(FIELD) FIELD(std::vector<MasterFreqModeEnum>, maskedModes, MaskedModes)

MESSAGE(SetMaskRangesMsg, m_setMaskRangesMsg, SET_MASK_RANGES)

#include "macros-off.h"
