#include "field-scene.h"

#include "common/defaults.h"
#include "common/history.h"

#include <random>

namespace {

const std::vector<Source> SOURCES = {
    {1280, 12, SigTypeEnum::FPV, -100, -90}, {2420, 15, SigTypeEnum::WIFI, -88, -88},
    {2470, 10, SigTypeEnum::DIG, -99, -84},  {5010, 6, SigTypeEnum::NONE, -96, -96},
    {5200, 25, SigTypeEnum::WIFI, -93, -93}, {5320, 10, SigTypeEnum::DIG, -90, -97},
    {5620, 6, SigTypeEnum::NONE, -97, -95},  {5745, 10, SigTypeEnum::WIFI, -96, -96},
    {5800, 15, SigTypeEnum::FPV, -100, -79},
};

constexpr int SCANS = History::DEFAULT_HISTORY_LEN + 1;

} // namespace

std::vector<ScanResults> fieldScene(ProtoEnum generation) {
    std::minstd_rand engine; // has the same seed each time
    const auto ripple = [&engine](int most) { return static_cast<float>(engine() % (most + 1U)); };
    std::vector<ScanResults> scans;
    scans.reserve(SCANS);
    for (int scan = 0; scan < SCANS; ++scan)
        scans.push_back(hear(SOURCES, Defaults::getDefaultConfigMsg(generation)->getRanges(),
                             static_cast<float>(scan) / (SCANS - 1), ripple));
    return scans;
}
