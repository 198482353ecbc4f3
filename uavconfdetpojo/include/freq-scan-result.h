#pragma once

#include "fields.h"
#include "level-scale.h"
#include "sig-type.h"

#include "macros-on.h"

/// What a scan found at one frequency.
///
/// - `freqMHz`: centre frequency in MHz
/// - `rssi`: level in dB, on `LevelScale`
/// - `visible`: carried, without a use here
/// - `type`: NONE where nothing was found
#define FIELDS(FIELD)              \
    FIELD(float, freqMHz, FreqMHz) \
    FIELD(float, rssi, Rssi)       \
    FIELD(bool, visible, Visible)  \
    FIELD(SigTypeEnum, type, Type)

NESTED_VALUE(FreqScanResult, m_freqScanResult)

#include "macros-off.h"
