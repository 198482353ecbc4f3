#pragma once

#include "level-scale.h"

#include <vector>

/// The places of levels in the views: from dB to pixels. All views have the same axis from -105 to -75 dB.
/// Each view has its own rule for levels outside of the axis.
struct LevelAxis {
    static constexpr int PLOT_MIN_Y = LevelScale::SILENCE; ///< dB, the weak end
    static constexpr int PLOT_MAX_Y = LevelScale::TOP;     ///< dB, the strong end
    static constexpr int minLevelDb = -100;                ///< dB, the weak end of the persistence display

    /// The levels that have a label and a grid line: every 5 dB from `fromDb` to the strong end.
    static std::vector<int> labels(int fromDb = PLOT_MIN_Y);

    /// Height of a bar in a plot of this height: 0 at -105 dB, the full height at -75 dB. On purpose: a level
    /// above the axis has a bar of height 0, and a level below it a bar of full height. So a level that the
    /// axis cannot show does not look like one near its end.
    static int barHeight(int levelDb, int plotHeight);
    /// Place of a level in the signal level over time, from the top of a grid of this height. On purpose: a
    /// stronger signal is lower, so the curve is mirrored against the labels. A level outside of the axis is
    /// placed at the nearer end. At the strong end that is one line width inside the grid, where the curve
    /// still shows.
    static int courseY(float levelDb, int gridHeight, int lineWidth);
    /// Top of a level's row in the persistence display, with `rowHeight` pixels for each dB. On purpose: a
    /// stronger level is lower. A level above the axis is in the last row. A level below -100 dB is noise;
    /// its place is above the picture, so it does not show.
    static int blockY(float levelDb, int rowHeight);
};
