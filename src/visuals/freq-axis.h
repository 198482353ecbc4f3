#pragma once

#include "master-freq-mode.h"
#include "visuals/ticks.h"

#include <vector>

/// The frequencies of a band's widest range, in MHz, as the bar plot has them from left to right.
struct BandAxis {
    static constexpr int PLOT_X_DELTA_MHZ = 200; ///< between two labels

    float minFreq = 0;
    float maxFreq = 0;
    float barWidth = 0; ///< from one frequency of the band to the next

    BandAxis() = default;
    /// Throws std::out_of_range for what is no band, or for one with fewer than two frequencies.
    explicit BandAxis(MasterFreqModeEnum band);

    bool holds(float freqMHz) const { return !(freqMHz < minFreq || freqMHz > maxFreq); }
    /// Pixels from the left end of an axis of this width; what lies outside stands at the end.
    int x(float freqMHz, int width) const;
    /// The multiples of 200 MHz from the lower limit on.
    /// On purpose: without the upper limit, whose label would stand outside of the plot.
    std::vector<int> labels() const;
};

/// The frequency axis of the persistence picture: ticks each 1, 5, 10, 50 ... MHz from the first column to
/// the last, as close as numbers of four digits allow. `freqs` in MHz, one for each column; `width` of the
/// grid and `charW` of a digit in pixels. Columns of one frequency have no axis.
std::vector<Tick> columnTicks(const std::vector<float> &freqs, int width, int charW);
