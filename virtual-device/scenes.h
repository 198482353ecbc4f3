#pragma once

#include "freq-mode.h"
#include "freq-scan-result.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using ScanResults = std::vector<std::shared_ptr<FreqScanResult>>;

/// A scene: returns the results of scan number `scan`, counted from 0, over the active ranges.
using Scene = std::function<ScanResults(std::size_t scan, const std::vector<FreqModeEnum> &ranges)>;

/// A transmitter of a scene, as the detector hears it.
struct Source {
    float freqMHz;
    float halfWidthMHz;
    SigTypeEnum type;
    float first; ///< dB in the oldest scan
    float last;  ///< dB in the newest scan
};

/// The results of a scan of these sources over noise. `share` is the progress of the scene, from 0 to 1.
/// `ripple(most)` returns the noise as a number of dB from 0 to `most`.
ScanResults hear(const std::vector<Source> &sources, const std::vector<FreqModeEnum> &ranges, float share,
                 const std::function<float(int)> &ripple);

/// A peak moves through each active range. Its class is Wi-Fi, digital or FPV in turn.
ScanResults wanderingPeaks(std::size_t scan, const std::vector<FreqModeEnum> &ranges);

/// A scene that a user may choose.
struct NamedScene {
    std::string name;
    std::string what; ///< a sentence for --help
    Scene scene;
};

const std::vector<NamedScene> &namedScenes();
/// Nothing if no scene has this name.
std::optional<Scene> sceneOf(const std::string &name);
