#pragma once

#include "common/history.h"
#include "visuals/drawing.h"
#include "visuals/freq-axis.h"

#include <QSize>
#include <vector>

/// One bar for each result inside the band, in the colour of its class, in a plot of this size in pixels. The
/// result's key `visible` is ignored. On purpose: a bar begins at its frequency and goes to the right; it is
/// not centred. Its height comes from the level without decimals.
std::vector<FilledRect> barsOf(const History::Scan &scan, const BandAxis &axis, const QSize &plot);
