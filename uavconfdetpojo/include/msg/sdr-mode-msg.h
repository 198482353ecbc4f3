#pragma once

#include "msg/msg.h"

/// Asks for raw data at one frequency.
///
/// - `freqMHz`: in MHz
#define SDR_MODE_MSG_FIELDS(FIELD) \
    FIELD(float, freqMHz, FreqMHz) \
    FIELD(int, count, Count)

MESSAGE(SdrModeMsg, m_sdrModeMsg, SDR_MODE, SDR_MODE_MSG_FIELDS)
