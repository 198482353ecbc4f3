#include "simulator/scan-plan.h"

#include <algorithm>

using std::chrono::milliseconds;

namespace {

constexpr int RSSI_PER_ATTEN = 3;
constexpr int MAX_ATTEN = 1000; // the level is at its floor long before, and nothing overflows
constexpr int BASE_CHANCE = 5;  // percent

milliseconds scanPeriod(DetModeEnum mode) {
    switch (mode) {
    case DetModeEnum::ECO:
        return milliseconds(5000);
    case DetModeEnum::AUTO:
        return milliseconds(2000);
    case DetModeEnum::CONT:
        return milliseconds(500);
    case DetModeEnum::BASE:
        break;
    }
    return milliseconds(1000);
}

struct Factors {
    int wifi = 1, dig = 1, fpv = 1;
};

Factors factorsOf(AiPriorEnum prior) {
    switch (prior) {
    case AiPriorEnum::AUTO:
        return {2, 1, 2};
    case AiPriorEnum::FIELD:
        return {4, 2, 3};
    case AiPriorEnum::CITY:
        return {1, 2, 2};
    case AiPriorEnum::NONE:
        return {2, 1, 1};
    case AiPriorEnum::DEFAULT:
        break;
    }
    return {};
}

template <typename Values, typename Value>
bool contains(const Values &values, Value value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

int draw(std::default_random_engine &engine, int least, int greatest) {
    return std::uniform_int_distribution<int>(least, greatest)(engine);
}

bool hit(std::default_random_engine &engine, int percent) {
    return percent > draw(engine, 0, 100);
}

/// Tries the chances one after the other. A chance of 0 draws no random number.
SigTypeEnum drawType(const ScanPlan &plan, std::default_random_engine &engine) {
    if (plan.wifi != 0 && hit(engine, plan.wifi))
        return SigTypeEnum::WIFI;
    if (plan.fpv != 0 && hit(engine, plan.fpv))
        return SigTypeEnum::FPV;
    if (plan.dig != 0 && hit(engine, plan.dig))
        return SigTypeEnum::DIG;
    return SigTypeEnum::NONE;
}

} // namespace

void ScanPlan::setByConfig(const ConfigMsg &config) {
    const auto ranges = config.getRanges();
    std::vector<std::vector<float>> plans;
    plans.reserve(ranges.size());
    for (const FreqModeEnum range : ranges)
        plans.push_back(FreqMode(range).getFreqList()->getFreqs());
    freqs = std::move(plans);
    period = scanPeriod(config.getMode());
    rssiMax =
        std::max(LevelScale::TOP - RSSI_PER_ATTEN * std::clamp(config.getAtten(), -MAX_ATTEN, MAX_ATTEN),
                 LevelScale::SILENCE);
    wifi = config.getWifiDet() ? BASE_CHANCE : 0;
    dig = config.getUavDet() ? BASE_CHANCE : 0;
    fpv = BASE_CHANCE;
    if (freqs.empty())
        wifi = dig = fpv = 0;
    // On purpose: a band that was once in the list of masked bands stays there, also after its ranges were
    // turned off.
    for (const MasterFreqModeEnum masterMode : Proto(config.getProto()).getMasterModes()) {
        const auto modes = MasterFreqMode(masterMode).getModes();
        const bool enabled = std::any_of(modes.begin(), modes.end(),
                                         [&](FreqModeEnum mode) { return contains(ranges, mode); });
        if (enabled && !contains(maskedMMs, masterMode))
            maskedMMs.push_back(masterMode);
    }
}

void ScanPlan::setByAiPrior(AiPriorEnum prior) {
    const Factors factors = factorsOf(prior);
    wifi = wifi ? BASE_CHANCE * factors.wifi : 0;
    dig = dig ? BASE_CHANCE * factors.dig : 0;
    // On purpose: set also if no range is active. Nothing is drawn then, because there is no frequency.
    fpv = BASE_CHANCE * factors.fpv;
}

std::shared_ptr<ScanResultMsg> ScanPlan::makeScan(std::default_random_engine &engine) const {
    std::vector<std::shared_ptr<FreqScanResult>> results;
    for (const auto &range : freqs) {
        for (const float freq : range) {
            const auto result = std::make_shared<FreqScanResult>();
            result->setFreqMHz(freq);
            result->setType(drawType(*this, engine));
            result->setRssi(static_cast<float>(hit(engine, 50) ? LevelScale::SILENCE
                                                               : draw(engine, LevelScale::SILENCE, rssiMax)));
            results.push_back(result);
        }
    }
    auto scan = std::make_shared<ScanResultMsg>();
    scan->setMask(mask);
    scan->setMaskedModes(maskedMMs);
    scan->setFreqs(results);
    return scan;
}
