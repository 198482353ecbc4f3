#pragma once

#include "common/history.h"

#include <QLine>
#include <QSize>
#include <vector>

/// The signal level over time: follows a band's strongest signal with a class over the last scans.
struct SignalCourse {
    using Rows = std::vector<std::vector<History::_HistoryPoint>>;

    static constexpr int MIN_LVL = -95; ///< dB; weaker signals are not followed

    int freq = 0; ///< MHz
    SigTypeEnum sigType = SigTypeEnum::NONE;
    std::vector<History::_HistoryPoint> points; ///< newest first; empty if no signal is followed

    /// Picks the signal from the newest row and follows it back in time while its class stays the same.
    /// `freqs` has the frequency of each column in MHz. On purpose: if there is no signal, frequency and
    /// class keep their values. They are not shown without points.
    void follow(const Rows &levels, const std::vector<float> &freqs);

    /// The time from the oldest point to the newest, in milliseconds; 0 without points.
    std::int64_t spanMs() const;
    /// The curve in a grid of this size in pixels, from the newest point at the right edge to the oldest.
    /// There is no curve if all scans have the same time.
    std::vector<QLine> curve(const QSize &grid, int lineWidth) const;
};
