#pragma once

#include "common/history.h"
#include "visuals/drawing.h"
#include "visuals/freq-axis.h"

#include <QSize>
#include <vector>

/// One bar for each result inside the band, in a plot of this size in pixels: from its frequency to the
/// right, as high as its level, in the colour of its signal class.
std::vector<FilledRect> barsOf(const History::Scan &scan, const BandAxis &axis, const QSize &plot);
