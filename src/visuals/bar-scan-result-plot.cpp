#include "visuals/bar-scan-result-plot.h"

#include "visuals/bars.h"

BarScanResultPlot::BarScanResultPlot(QQuickItem *parent)
    : LayeredPlot(parent) {
    connect(this, &BarScanResultPlot::masterModeChanged, this, &BarScanResultPlot::paintBackground);
}

void BarScanResultPlot::setHistory(History history) {
    if (history.getMasterMode() != masterMode) {
        masterMode = history.getMasterMode();
        axis = BandAxis(masterMode);
        const std::vector<int> labels = axis.labels();
        xLabels.insert(labels.begin(), labels.end());
        emit masterModeChanged();
    }
    freqScanResults = history.getFreqScanResults();
    emit historyChanged();
}

QRect BarScanResultPlot::layOut(const QSize &item) {
    const int left = 3 * textSize + 2;
    const int top = textSize + 2;
    plot = QRect(left, top, item.width() - left, item.height() - 2 * top);
    return plot;
}

Drawing BarScanResultPlot::legend() const {
    Drawing drawing;
    const int itemHeight = plot.height() + 2 * plot.top();
    for (const int freq : axis.labels())
        drawing.push_back(words(plot.left() + axis.x(static_cast<float>(freq), plot.width()), itemHeight,
                                QString::number(freq), Qt::black));
    for (const int level : LevelAxis::labels()) {
        const int height = LevelAxis::barHeight(level, plot.height());
        drawing.push_back(levelLabel(level >= -99 ? textSize / 2 : 0,
                                     plot.height() - height + textSize / 2 + plot.top(), level, Qt::black,
                                     plot.left()));
    }
    return drawing;
}

Drawing BarScanResultPlot::data() const {
    const int width = plot.width();
    const int height = plot.height();
    Drawing drawing;
    for (const int freq : xLabels)
        drawing.push_back(FilledRect{QRect(axis.x(static_cast<float>(freq), width), 0, lineWidth, height),
                                     innerBorderColor});
    for (const int level : LevelAxis::labels())
        drawing.push_back(
            FilledRect{QRect(0, LevelAxis::barHeight(level, height), width, lineWidth), innerBorderColor});
    for (const FilledRect &bar : barsOf(freqScanResults, axis, plot.size()))
        drawing.push_back(bar);
    drawing.push_back(FilledRect{QRect(0, height - lineWidth, width, 2 * lineWidth), innerBorderColor});
    for (std::size_t i = 0; i < PLOT_LEVELS.size(); ++i) {
        // On purpose: counted from the top, while bars and labels are counted from the bottom. So the lines
        // are mirrored against the axis. Users know them there.
        const int y = LevelAxis::barHeight(static_cast<int>(PLOT_LEVELS[i]), height);
        // With dashes of length 0 the painter would never reach the end of the line.
        drawing.push_back(DrawnLine{QLine(0, y, width, y), QColor::fromRgba(PLOT_COLORS[i]), lineWidth,
                                    qMax(textSize / 4, 1)});
    }
    return drawing;
}
