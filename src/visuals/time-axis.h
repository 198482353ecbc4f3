#pragma once

#include "visuals/ticks.h"

#include <vector>

/// The time axis of a grid `width` pixels wide, with now at its right edge: how long ago, in seconds if the
/// axis spans more than one, otherwise in milliseconds. `charW` is the width of a digit in pixels. Scans of
/// one and the same millisecond have no axis.
/// On purpose: without a unit, for which the line below the grid has no room.
std::vector<Tick> timeTicks(std::int64_t spanMs, int width, int charW);

/// Where the vertical lines of a grid stand that has no time axis.
std::vector<int> linesWithoutTime(int width);
