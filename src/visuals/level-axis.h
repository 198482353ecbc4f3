#pragma once

#include "level-scale.h"

#include <vector>

/// Where levels, in dB, stand in the views, in pixels. All views have the same axis; what lies beyond its
/// ends each shows in a way of its own.
struct LevelAxis {
    static constexpr int PLOT_MIN_Y = LevelScale::SILENCE; ///< dB, the weak end
    static constexpr int PLOT_MAX_Y = LevelScale::TOP;     ///< dB, the strong end
    static constexpr int minLevelDb = -100;                ///< dB, the weak end of the persistence picture

    /// The levels that have a label and a grid line: each 5 dB, from here to the strong end.
    static std::vector<int> labels(int fromDb = PLOT_MIN_Y);

    /// Height of a bar in a plot of this height, from 0 at the weak end to the full height at the strong one.
    /// On purpose: reversed beyond the ends, 0 above the axis and the full height below it. What the axis
    /// cannot show does not pass for a level near by.
    static int barHeight(int levelDb, int plotHeight);
    /// The place of a level in the course of a signal, from the top of a grid of this height.
    /// On purpose: the curve so lies mirrored against the labels, a stronger signal lower. A level beyond the
    /// axis is held at its end, above it by a line's width inside the grid, where it still shows.
    static int courseY(float levelDb, int gridHeight, int lineWidth);
    /// The top of a level's row in the persistence picture, with `rowHeight` pixels for each dB.
    /// On purpose: levels run downwards. One above the axis stands in the last row, one below -100 above the
    /// picture, where it does not show: that is noise.
    static int blockY(float levelDb, int rowHeight);
};
