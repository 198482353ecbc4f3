#include "field-scene.h"

#include "common/defaults.h"
#include "common/history.h"
#include "freq-mode.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

struct Source {
    float freqMHz;
    float halfWidthMHz;
    SigTypeEnum type;
    float first; // dB in the oldest scan
    float last;  // dB in the newest scan
};

const Source SOURCES[] = {
    {1280, 12, SigTypeEnum::FPV, -100, -90}, {2420, 15, SigTypeEnum::WIFI, -88, -88},
    {2470, 10, SigTypeEnum::DIG, -99, -84},  {5010, 6, SigTypeEnum::NONE, -96, -96},
    {5200, 25, SigTypeEnum::WIFI, -93, -93}, {5320, 10, SigTypeEnum::DIG, -90, -97},
    {5620, 6, SigTypeEnum::NONE, -97, -95},  {5745, 10, SigTypeEnum::WIFI, -96, -96},
    {5800, 15, SigTypeEnum::FPV, -100, -79},
};

constexpr float FALL_DB = 6; // from the middle of a source to its edge
constexpr int SCANS = History::DEFAULT_HISTORY_LEN + 1;

} // namespace

std::vector<std::vector<std::shared_ptr<FreqScanResult>>> fieldScene(ProtoEnum generation) {
    std::minstd_rand engine; // seeded alike each time
    const auto ripple = [&engine](int most) { return static_cast<float>(engine() % (most + 1U)); };
    std::vector<std::vector<std::shared_ptr<FreqScanResult>>> scans(SCANS);
    for (int scan = 0; scan < SCANS; ++scan) {
        const float age = static_cast<float>(scan) / (SCANS - 1);
        for (const FreqModeEnum range : Defaults::getDefaultConfigMsg(generation)->getRanges()) {
            for (const float freq : FreqMode(range).getFreqList()->getFreqs()) {
                float level = -105 + ripple(6);
                SigTypeEnum type = SigTypeEnum::NONE;
                for (const Source &source : SOURCES) {
                    const float distance = std::abs(freq - source.freqMHz) / source.halfWidthMHz;
                    const float heard =
                        source.first + (source.last - source.first) * age - distance * FALL_DB - ripple(1);
                    if (distance > 1 || heard < level)
                        continue;
                    level = heard;
                    type = source.type;
                }
                scans[static_cast<std::size_t>(scan)].push_back(std::make_shared<FreqScanResult>(
                    FreqScanResultBuilder().freqMHz(freq).rssi(level).type(type).build()));
            }
        }
    }
    return scans;
}
