#pragma once

#include "common/history.h"
#include "visuals/drawing.h"
#include "visuals/freq-axis.h"

#include <QSize>
#include <vector>

/// One bar for each result inside the band, in a plot of this size in pixels, in the colour of its class.
/// On purpose: from its frequency to the right, not around it, and as high as its level without decimals.
/// `visible` plays no part.
std::vector<FilledRect> barsOf(const History::Scan &scan, const BandAxis &axis, const QSize &plot);
