#pragma once

#include "freq-scan-result.h"

#include <memory>
#include <vector>

/// Results at these frequencies (MHz), all of one level (dB).
inline std::vector<std::shared_ptr<FreqScanResult>> resultsAt(const std::vector<float> &freqs, float rssi) {
    std::vector<std::shared_ptr<FreqScanResult>> results;
    for (const float freq : freqs)
        results.push_back(std::make_shared<FreqScanResult>(
            FreqScanResultBuilder().freqMHz(freq).rssi(rssi).type(SigTypeEnum::DIG).build()));
    return results;
}
