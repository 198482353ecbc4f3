#pragma once

#include "master-freq-mode.h"
#include "msg/msg.h"

#include <vector>

/// Asks the device to mask the named bands.
#define SET_MASK_RANGES_MSG_FIELDS(FIELD) FIELD(std::vector<MasterFreqModeEnum>, maskedModes, MaskedModes)

MESSAGE(SetMaskRangesMsg, m_setMaskRangesMsg, SET_MASK_RANGES, SET_MASK_RANGES_MSG_FIELDS)
