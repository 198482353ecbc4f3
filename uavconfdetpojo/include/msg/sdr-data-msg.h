#pragma once

#include "msg/msg.h"

#include <vector>

#include "macros-on.h"

/// A block of SDR data at one frequency.
///
/// - `freqMHz`: in MHz
#define FIELDS(FIELD)              \
    FIELD(float, freqMHz, FreqMHz) \
    FIELD(std::vector<int>, data, Data)

MESSAGE(SdrDataMsg, m_sdrDataMsg, SDR_DATA)

#include "macros-off.h"
