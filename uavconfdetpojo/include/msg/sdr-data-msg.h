#pragma once

#include "msg/msg.h"

#include <vector>

/// A block of SDR data at one frequency.
///
/// - `freqMHz`: in MHz
#define SDR_DATA_MSG_FIELDS(FIELD) \
    FIELD(float, freqMHz, FreqMHz) \
    FIELD(std::vector<int>, data, Data)

MESSAGE(SdrDataMsg, m_sdrDataMsg, SDR_DATA, SDR_DATA_MSG_FIELDS)
