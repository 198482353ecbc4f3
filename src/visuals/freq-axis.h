#pragma once

#include "master-freq-mode.h"
#include "visuals/ticks.h"

#include <vector>

/// The frequency axis of the bars: the widest sweep range of a band, in MHz, from left to right.
struct BandAxis {
    static constexpr int PLOT_X_DELTA_MHZ = 200; ///< between two labels

    float minFreq = 0;
    float maxFreq = 0;
    float barWidth = 0; ///< from one frequency of the range to the next

    BandAxis() = default;
    /// Throws std::out_of_range for a number that is no band, and for a band with fewer than two frequencies.
    explicit BandAxis(MasterFreqModeEnum band);

    bool holds(float freqMHz) const { return !(freqMHz < minFreq || freqMHz > maxFreq); }
    /// The place of a frequency in pixels from the left end of an axis of this width. A frequency outside of
    /// the range is placed at the nearer end.
    int x(float freqMHz, int width) const;
    /// The frequencies with a label: the multiples of 200 MHz in the range. On purpose: without the upper
    /// limit, because its label would be outside of the plot.
    std::vector<int> labels() const;
};

/// The frequency axis of the persistence display, from the first column to the last. Ticks are 1, 5, 10, 50
/// ... MHz apart, as close as numbers of four digits allow. `freqs` has the frequency of each column in MHz.
/// `width` is that of the grid and `charW` that of a digit, in pixels. There are no ticks unless the last
/// frequency is above the first.
std::vector<Tick> columnTicks(const std::vector<float> &freqs, int width, int charW);
