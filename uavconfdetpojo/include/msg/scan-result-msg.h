#pragma once

#include "freq-scan-result.h"
#include "master-freq-mode.h"
#include "msg/msg.h"

#include <memory>
#include <vector>

#include "macros-on.h"

/// One scan over all active ranges.
///
/// - `freqs`: in the order of the device
/// - `mask`: true if the mask of the device is on; devices always send it
/// - `maskedModes`: the masked bands
#define FIELDS(FIELD)                                                 \
    FIELD(std::vector<std::shared_ptr<FreqScanResult>>, freqs, Freqs) \
    FIELD(bool, mask, Mask)                                           \
    FIELD(std::vector<MasterFreqModeEnum>, maskedModes, MaskedModes)

MESSAGE(ScanResultMsg, m_scanResultMsg, SCAN_RESULT)

#include "macros-off.h"
