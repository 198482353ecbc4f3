#include "scenes.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

constexpr float NOISE_FLOOR = LevelScale::SILENCE;
constexpr int NOISE_RIPPLE = 6;      // dB
constexpr float FALL = 6;            // dB from the middle of a source to its edge
constexpr std::size_t APPROACH = 40; // scans until the drone is near, and as many until it has gone

std::shared_ptr<FreqScanResult> resultOf(float freqMHz, float rssi, SigTypeEnum type) {
    return std::make_shared<FreqScanResult>(
        FreqScanResultBuilder().freqMHz(freqMHz).rssi(rssi).type(type).build());
}

/// A scene of these sources over noise. The same scan always has the same noise.
Scene sceneWith(std::vector<Source> sources) {
    return [sources = std::move(sources)](std::size_t scan, const std::vector<FreqModeEnum> &ranges) {
        std::minstd_rand engine(static_cast<unsigned>(scan + 1));
        const auto way = scan % (2 * APPROACH);
        const auto steps = static_cast<float>(std::min(way, 2 * APPROACH - way));
        return hear(
            sources, ranges, steps / APPROACH,
            [&engine](int most) { return static_cast<float>(engine() % (static_cast<unsigned>(most) + 1)); });
    };
}

} // namespace

ScanResults hear(const std::vector<Source> &sources, const std::vector<FreqModeEnum> &ranges, float share,
                 const std::function<float(int)> &ripple) {
    ScanResults results;
    for (const FreqModeEnum range : ranges) {
        const auto list = FreqMode(range).getFreqList();
        for (const float freq : list ? list->getFreqs() : std::vector<float>()) {
            float level = NOISE_FLOOR + ripple(NOISE_RIPPLE);
            SigTypeEnum type = SigTypeEnum::NONE;
            for (const Source &source : sources) {
                const float distance = std::abs(freq - source.freqMHz) / source.halfWidthMHz;
                const float heard =
                    source.first + (source.last - source.first) * share - distance * FALL - ripple(1);
                if (distance > 1 || heard < level)
                    continue;
                level = heard;
                type = source.type;
            }
            results.push_back(resultOf(freq, level, type));
        }
    }
    return results;
}

ScanResults wanderingPeaks(std::size_t scan, const std::vector<FreqModeEnum> &ranges) {
    static const SigTypeEnum KINDS[] = {SigTypeEnum::WIFI, SigTypeEnum::DIG, SigTypeEnum::FPV};
    ScanResults results;
    std::size_t kind = 0;
    for (const FreqModeEnum range : ranges) {
        const auto list = FreqMode(range).getFreqList();
        const auto plan = list ? list->getFreqs() : std::vector<float>();
        const int peak = plan.empty() ? 0 : static_cast<int>(scan % plan.size());
        for (int i = 0; i < static_cast<int>(plan.size()); ++i) {
            const float rssi =
                static_cast<float>(std::max<int>(LevelScale::SILENCE, -78 - 6 * std::abs(i - peak)));
            const auto type = rssi > -90 ? KINDS[kind % std::size(KINDS)] : SigTypeEnum::NONE;
            results.push_back(resultOf(plan[static_cast<std::size_t>(i)], rssi, type));
        }
        ++kind;
    }
    return results;
}

const std::vector<NamedScene> &namedScenes() {
    static const std::vector<NamedScene> SCENES = {
        {"drone", "An FPV drone comes nearer and goes again.",
         sceneWith({{2420, 15, SigTypeEnum::WIFI, -90, -90},
                    {2470, 10, SigTypeEnum::DIG, -104, -82},
                    {5800, 15, SigTypeEnum::FPV, -106, -71}})},
        {"street", "Wi-Fi networks are busy.",
         sceneWith({{2412, 11, SigTypeEnum::WIFI, -72, -80},
                    {2437, 11, SigTypeEnum::WIFI, -90, -70},
                    {2462, 11, SigTypeEnum::WIFI, -83, -88},
                    {5180, 20, SigTypeEnum::WIFI, -86, -92},
                    {5500, 20, SigTypeEnum::WIFI, -95, -88},
                    {5745, 20, SigTypeEnum::WIFI, -80, -84}})},
        {"silence", "There is only noise.", sceneWith({})},
        {"peaks", "A strong signal wanders through each band.", wanderingPeaks},
    };
    return SCENES;
}

std::optional<Scene> sceneOf(const std::string &name) {
    for (const NamedScene &scene : namedScenes())
        if (scene.name == name)
            return scene.scene;
    return {};
}
