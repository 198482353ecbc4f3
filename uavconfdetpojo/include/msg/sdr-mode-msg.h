#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// The SDR mode at one frequency. What it does is the business of the device.
///
/// - `freqMHz`: in MHz
/// - `count`: without a unit here
#define FIELDS(FIELD)              \
    FIELD(float, freqMHz, FreqMHz) \
    FIELD(int, count, Count)

MESSAGE(SdrModeMsg, m_sdrModeMsg, SDR_MODE)

#include "macros-off.h"
