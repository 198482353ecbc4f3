#pragma once

#include <cstdint>

/// A vertical line of a grid and the number below it. Places are in pixels from the left end of the grid.
struct Tick {
    int x;
    std::int64_t number;
    int labelX;    ///< where the number begins
    bool hasLabel; ///< false if the number has no room
};

/// The first of the steps 1, 5, 10, 50, 100 and so on with which the numbers fit side by side.
template <typename Fits>
std::int64_t labelStep(Fits fits) {
    std::int64_t step = 1;
    for (bool toFive = true; !fits(step); toFive = !toFive)
        step *= toFive ? 5 : 2;
    return step;
}
