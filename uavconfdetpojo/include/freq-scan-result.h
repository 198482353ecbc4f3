#pragma once

#include "fields.h"
#include "level-scale.h"
#include "sig-type.h"

#include "macros-on.h"

/// The result of a scan at one frequency.
///
/// - `freqMHz`: centre frequency in MHz
/// - `rssi`: level in dB, on `LevelScale`
/// - `visible`: not used by this library or the program
/// - `type`: signal class; NONE if nothing was found
#define FIELDS(FIELD)              \
    FIELD(float, freqMHz, FreqMHz) \
    FIELD(float, rssi, Rssi)       \
    FIELD(bool, visible, Visible)  \
    FIELD(SigTypeEnum, type, Type)

NESTED_VALUE(FreqScanResult, m_freqScanResult)

#include "macros-off.h"
