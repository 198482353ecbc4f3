#pragma once

#include "freq-mode.h"
#include "freq-scan-result.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using ScanResults = std::vector<std::shared_ptr<FreqScanResult>>;

/// What a detector hears in its n-th scan, counted from 0, over its active ranges.
using Scene = std::function<ScanResults(std::size_t scan, const std::vector<FreqModeEnum> &ranges)>;

/// A transmitter as a detector hears it over one scene.
struct Source {
    float freqMHz;
    float halfWidthMHz;
    SigTypeEnum type;
    float first; ///< dB in the oldest scan
    float last;  ///< dB in the newest scan
};

/// What is heard of these sources over noise; `share` is how far the scene has come, from 0 to 1. The noise
/// is drawn from `ripple`, which gives a number of dB from 0 to the one that it is given.
ScanResults hear(const std::vector<Source> &sources, const std::vector<FreqModeEnum> &ranges, float share,
                 const std::function<float(int)> &ripple);

/// A peak wanders through each active range, a Wi-Fi one, a digital one, an FPV one.
ScanResults wanderingPeaks(std::size_t scan, const std::vector<FreqModeEnum> &ranges);

/// A scene that a user may choose.
struct NamedScene {
    std::string name;
    std::string what; ///< a sentence for --help
    Scene scene;
};

const std::vector<NamedScene> &namedScenes();
/// Nothing for a name that no scene has.
std::optional<Scene> sceneOf(const std::string &name);
