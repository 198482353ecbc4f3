#pragma once

#include "common/history.h"

#include <QLine>
#include <QSize>
#include <vector>

/// The course of a band's strongest classified signal over the last scans.
struct SignalCourse {
    using Rows = std::vector<std::vector<History::_HistoryPoint>>;

    static constexpr int MIN_LVL = -95; ///< dB; a signal is followed only above it

    int freq = 0; ///< MHz
    SigTypeEnum sigType = SigTypeEnum::NONE;
    std::vector<History::_HistoryPoint> points; ///< newest first; empty where no signal is followed

    /// Picks the signal from the newest row and follows it back for as long as its class stays the same.
    /// On purpose: without one, frequency and class stay as they were. Nothing shows them without points.
    /// `freqs` in MHz, one for each column.
    void follow(const Rows &levels, const std::vector<float> &freqs);

    /// From the oldest point to the newest, in milliseconds; 0 without points.
    std::int64_t spanMs() const;
    /// The curve in a grid of this size in pixels, from the newest point at the right edge to the oldest.
    /// Scans of one and the same millisecond have none.
    std::vector<QLine> curve(const QSize &grid, int lineWidth) const;
};
