#include "visuals/signal-course.h"

#include "common/bounded.h"
#include "visuals/level-axis.h"

void SignalCourse::follow(const Rows &levels, const std::vector<float> &freqs) {
    points.clear();
    if (levels.empty() || freqs.empty())
        return;
    const auto &newest = levels.back();
    // On purpose: the first column is never followed. The others are compared with it, and if none is
    // stronger, there is no signal.
    std::size_t best = 0;
    for (std::size_t column = 1; column < newest.size(); ++column) {
        const auto &point = newest[column];
        if (point.rssi > MIN_LVL && point.sigType != SigTypeEnum::NONE && point.rssi > newest[best].rssi)
            best = column;
    }
    if (best == 0)
        return;
    freq = static_cast<int>(bounded(freqs.at(best)));
    sigType = newest[best].sigType;
    // On purpose: without the oldest row, the one that a full history drops next.
    for (auto row = levels.rbegin(); row != levels.rend() - 1 && row->at(best).sigType == sigType; ++row)
        points.push_back(row->at(best));
}

std::int64_t SignalCourse::spanMs() const {
    return points.empty() ? 0 : points.front().timeMsg - points.back().timeMsg;
}

std::vector<QLine> SignalCourse::curve(const QSize &grid, int lineWidth) const {
    std::vector<QLine> lines;
    const std::int64_t span = spanMs();
    if (span <= 0)
        return lines;
    const auto place = [&](const History::_HistoryPoint &point) {
        return QPoint(static_cast<int>(grid.width() * (point.timeMsg - points.back().timeMsg) / span),
                      LevelAxis::courseY(point.rssi, grid.height(), lineWidth));
    };
    for (std::size_t i = 1; i < points.size(); ++i)
        lines.emplace_back(place(points[i - 1]), place(points[i]));
    return lines;
}
