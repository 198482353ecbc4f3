#pragma once

#include "msg/msg.h"

/// The SDR mode at one frequency. What it does is the business of the device.
///
/// - `freqMHz`: in MHz
/// - `count`: without a unit here
#define SDR_MODE_MSG_FIELDS(FIELD) \
    FIELD(float, freqMHz, FreqMHz) \
    FIELD(int, count, Count)

MESSAGE(SdrModeMsg, m_sdrModeMsg, SDR_MODE, SDR_MODE_MSG_FIELDS)
