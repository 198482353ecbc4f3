#pragma once

#include "freq-scan-result.h"

#include <cstddef>
#include <memory>
#include <vector>

inline namespace kelvane {

/// How many signals of a scan the screens name.
constexpr int STRONGEST_SIGNALS_NAMED = 3;

/// The signals to name of a scan, the strongest first: at most `maxCount` of those that have a class and
/// exceed `floor`, in dB. Of equal levels the one that came first is the stronger.
std::vector<std::shared_ptr<FreqScanResult>>
strongestSignals(const std::vector<std::shared_ptr<FreqScanResult>> &scan, std::size_t maxCount, float floor);

} // namespace kelvane
