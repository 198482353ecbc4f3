#pragma once

#include "visuals/ticks.h"

#include <vector>

/// The time axis of a grid `width` pixels wide. The newest scan is at the right edge. Numbers are the time
/// before it, in seconds if the axis is longer than a second, otherwise in milliseconds. `charW` is the width
/// of a digit in pixels. There are no ticks if all scans have the same time. On purpose: numbers have no
/// unit, because the line below the grid has no room for it.
std::vector<Tick> timeTicks(std::int64_t spanMs, int width, int charW);

/// The places of the vertical lines if a grid has no time axis.
std::vector<int> linesWithoutTime(int width);
