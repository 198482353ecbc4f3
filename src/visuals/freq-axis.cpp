#include "visuals/freq-axis.h"

#include "common/bounded.h"
#include "freq-mode.h"

#include <QtGlobal>

BandAxis::BandAxis(MasterFreqModeEnum band) {
    const FreqMode widest = MasterFreqMode(band).getWidestRange();
    const std::vector<float> freqs = widest.getFreqList()->getFreqs();
    minFreq = widest.getMinFreq();
    maxFreq = widest.getMaxFreq();
    barWidth = freqs.at(1) - freqs.at(0);
}

int BandAxis::x(float freqMHz, int width) const {
    if (freqMHz < minFreq || maxFreq <= minFreq)
        return 0;
    if (freqMHz > maxFreq)
        return width;
    return qRound(static_cast<float>(width) * (freqMHz - minFreq) / (maxFreq - minFreq));
}

std::vector<int> BandAxis::labels() const {
    const int from = qRound(minFreq);
    const int beyond = from % PLOT_X_DELTA_MHZ;
    std::vector<int> freqs;
    for (int freq = beyond == 0 ? from : from - beyond + PLOT_X_DELTA_MHZ; static_cast<float>(freq) < maxFreq;
         freq += PLOT_X_DELTA_MHZ)
        freqs.push_back(freq);
    return freqs;
}

std::vector<Tick> columnTicks(const std::vector<float> &freqs, int width, int charW) {
    const float rangeMHz = freqs.empty() ? 0 : bounded(freqs.back() - freqs.front());
    if (rangeMHz <= 0)
        return {};
    const auto step = static_cast<int>(labelStep([&](std::int64_t candidate) {
        return 1.2 * 4 * charW * (rangeMHz / static_cast<float>(candidate)) <= width;
    }));
    const float pixelsPerMHz = static_cast<float>(width) / rangeMHz;
    std::vector<Tick> ticks;
    // Counts the distance, not the frequency: a huge frequency plus one step may be the same float.
    for (int distance = 0; static_cast<float>(distance) <= rangeMHz; distance += step) {
        const auto distanceMHz = static_cast<float>(distance);
        const float freq = freqs.front() + distanceMHz;
        const int x = static_cast<int>(pixelsPerMHz * distanceMHz);
        const int labelW = charW * (freq >= 1000 ? 4 : 3);
        const int labelX = x - labelW / 2;
        ticks.push_back({x, static_cast<int>(bounded(freq)), labelX, labelX + labelW <= width});
    }
    return ticks;
}
