#include "visuals/bars.h"

#include "common/bounded.h"
#include "common/sig-type-colors.h"
#include "visuals/level-axis.h"

std::vector<FilledRect> barsOf(const History::Scan &scan, const BandAxis &axis, const QSize &plot) {
    const int width = axis.x(axis.minFreq + axis.barWidth, plot.width());
    std::vector<FilledRect> bars;
    for (const auto &result : scan) {
        const float freq = result->getFreqMHz();
        if (!axis.holds(freq))
            continue;
        const int height = LevelAxis::barHeight(static_cast<int>(bounded(result->getRssi())), plot.height());
        bars.push_back({QRect(axis.x(freq, plot.width()), plot.height() - height, width, height),
                        SigTypeColors::getColor(result->getType())});
    }
    return bars;
}
