#pragma once

#include "freq-scan-result.h"

#include <cstddef>
#include <memory>
#include <vector>

inline namespace kelvane {

/// The number of signals of a scan that the screens name.
constexpr int STRONGEST_SIGNALS_NAMED = 3;

/// The signals of a scan to name, strongest first. They have a class and a level above `floor`, in dB. There
/// are at most `maxCount`. Of two equal levels the first one counts as stronger. On purpose: even
/// if there is room, a signal after the first is left out if no signal that is listed so far is weaker. It is
/// often the slope of the same transmitter.
std::vector<std::shared_ptr<FreqScanResult>>
strongestSignals(const std::vector<std::shared_ptr<FreqScanResult>> &scan, std::size_t maxCount, float floor);

} // namespace kelvane
