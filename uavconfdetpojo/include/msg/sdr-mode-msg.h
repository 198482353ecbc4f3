#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// The SDR mode at one frequency. Only the device knows what it does.
///
/// - `freqMHz`: in MHz
/// - `count`: unit unknown
#define FIELDS(FIELD)              \
    FIELD(float, freqMHz, FreqMHz) \
    FIELD(int, count, Count)

MESSAGE(SdrModeMsg, m_sdrModeMsg, SDR_MODE)

#include "macros-off.h"
