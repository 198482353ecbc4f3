#pragma once

#include "msg/ai-prior-msg.h"
#include "msg/config-msg.h"
#include "msg/scan-result-msg.h"

#include <chrono>
#include <memory>
#include <random>
#include <vector>

inline namespace kelvane {

/// What the simulator sends with its current settings.
struct ScanPlan {
    std::chrono::milliseconds period{1000};
    std::vector<std::vector<float>> freqs; ///< centre frequencies in MHz of each active range
    bool mask = false;
    std::vector<MasterFreqModeEnum> maskedMMs;
    int rssiMax = LevelScale::TOP; ///< the highest level, dB
    int wifi = 0;                  ///< this and the next two: chance of the signal class in percent
    int dig = 0;
    int fpv = 0;

    void setByConfig(const ConfigMsg &config);
    /// On purpose: the factors of an AI mode last only until the next `setByConfig`.
    void setByAiPrior(AiPriorEnum prior);
    /// Makes a random scan. About half of its levels are silence. Silence may also have a signal class.
    std::shared_ptr<ScanResultMsg> makeScan(std::default_random_engine &engine) const;
};

} // namespace kelvane
