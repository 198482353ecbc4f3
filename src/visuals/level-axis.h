#pragma once

#include <vector>

/// Where levels, in dB, stand in the views, in pixels. All views have the same axis; what lies beyond its
/// ends each shows in a way of its own.
struct LevelAxis {
    static constexpr int PLOT_MIN_Y = -105; ///< dB, the weak end
    static constexpr int PLOT_MAX_Y = -75;  ///< dB, the strong end
    static constexpr int minLevelDb = -100; ///< dB, the weak end of the persistence picture

    /// The levels that have a label and a grid line: each 5 dB, from here to the strong end.
    static std::vector<int> labels(int fromDb = PLOT_MIN_Y);

    /// Height of a bar in a plot of this height, from 0 at the weak end to the full height at the strong one.
    static int barHeight(int levelDb, int plotHeight);
    /// The place of a level in the course of a signal, from the top of a grid of this height.
    static int courseY(float levelDb, int gridHeight, int lineWidth);
    /// The top of a level's row in the persistence picture, with `rowHeight` pixels for each dB.
    static int blockY(float levelDb, int rowHeight);
};
