#include "visuals/bar-scan-result-plot.h"

#include "common/bounded.h"
#include "common/sig-type-colors.h"
#include "freq-mode.h"
#include "master-freq-mode.h"

#include <QPainter>
#include <QPen>
#include <algorithm>

namespace {

/// The labels come anew with each size, the grid lines they stand for do not.
template <typename Label>
void addLabel(std::vector<Label> &labels, Label label) {
    if (std::find(labels.begin(), labels.end(), label) == labels.end())
        labels.push_back(label);
}

} // namespace

BarScanResultPlot::BarScanResultPlot(QQuickItem *parent)
    : LayeredPlot(parent) {
    connect(this, &BarScanResultPlot::masterModeChanged, this, &BarScanResultPlot::paintBackground);
}

void BarScanResultPlot::setHistory(History history) {
    if (history.getMasterMode() != masterMode) {
        masterMode = history.getMasterMode();
        const FreqMode widest(MasterFreqMode(masterMode).getMaxRangeFreqMode());
        minFreq = widest.getMinFreq();
        maxFreq = widest.getMaxFreq();
        const std::vector<float> freqs = widest.getFreqList()->getFreqs();
        barWidth = freqs.at(1) - freqs.at(0);
        emit masterModeChanged();
    }
    freqScanResults = history.getFreqScanResults();
    emit historyChanged();
}

int BarScanResultPlot::scaleX(float freq) const {
    if (freq < minFreq || maxFreq <= minFreq)
        return 0;
    if (freq > maxFreq)
        return plotWidth;
    return qRound(static_cast<float>(plotWidth) * (freq - minFreq) / (maxFreq - minFreq));
}

int BarScanResultPlot::scaleY(int level) const {
    const auto levelDb = static_cast<float>(level);
    if (levelDb < PLOT_MIN_Y)
        return plotHeight;
    if (levelDb > PLOT_MAX_Y)
        return 0;
    return plotHeight -
           qRound(static_cast<float>(plotHeight) * (levelDb - PLOT_MAX_Y) / (PLOT_MIN_Y - PLOT_MAX_Y));
}

QRect BarScanResultPlot::layOut(const QSizeF &item) {
    xStep = 3 * textSize + 2;
    yStep = textSize + 2;
    itemHeight = static_cast<int>(item.height());
    plotHeight = static_cast<int>(item.height() - 2 * yStep);
    plotWidth = static_cast<int>(item.width() - xStep);
    return QRect(xStep, yStep, plotWidth, plotHeight);
}

void BarScanResultPlot::paintLegend(QPainter &painter) {
    painter.setPen(Qt::black);
    const int from = qRound(minFreq);
    const int step = static_cast<int>(PLOT_X_DELTA_MHZ);
    int tick = from - from % step;
    if (tick != from)
        tick += step;
    for (; static_cast<float>(tick) < maxFreq; tick += step) {
        const auto tickMHz = static_cast<float>(tick);
        addLabel(xLabels, tickMHz);
        painter.drawText(scaleX(tickMHz) + xStep, itemHeight, QString::number(tick));
    }
    for (int level = static_cast<int>(PLOT_MIN_Y); level <= static_cast<int>(PLOT_MAX_Y);
         level += LEVEL_STEP_DB) {
        addLabel(yLabels, level);
        const int x = level >= -99 ? textSize / 2 : 0;
        painter.drawText(x, plotHeight - scaleY(level) + textSize / 2 + yStep, QString::number(level));
    }
}

void BarScanResultPlot::paintData(QPainter &painter) {
    paintInnerBorders(painter);
    paintPlot(painter);
    paintBorders(painter);
}

void BarScanResultPlot::paintInnerBorders(QPainter &painter) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(backgroundColor);
    painter.drawRect(0, 0, plotWidth, plotHeight);
    painter.setBrush(innerBorderColor);
    for (float freq : xLabels)
        painter.drawRect(scaleX(freq), 0, lineWidth, plotHeight);
    for (int level : yLabels)
        painter.drawRect(0, scaleY(level), plotWidth, lineWidth);
}

void BarScanResultPlot::paintPlot(QPainter &painter) const {
    painter.setPen(Qt::NoPen);
    const int width = scaleX(minFreq + barWidth);
    for (const auto &result : freqScanResults) {
        const float freq = result->getFreqMHz();
        if (freq < minFreq || freq > maxFreq)
            continue;
        painter.setBrush(SigTypeColors::getColor(result->getType()));
        const int height = scaleY(static_cast<int>(bounded(result->getRssi())));
        painter.drawRect(scaleX(freq), plotHeight - height, width, height);
    }
}

void BarScanResultPlot::paintBorders(QPainter &painter) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(innerBorderColor);
    painter.drawRect(0, plotHeight - lineWidth, plotWidth, 2 * lineWidth);

    // A dash without length would never get to the end of the line.
    const int dash = qMax(textSize / 4, 1);
    QPen pen = painter.pen();
    pen.setDashPattern({static_cast<qreal>(dash), static_cast<qreal>(dash)});
    pen.setDashOffset(dash);
    pen.setWidth(lineWidth);
    for (std::size_t i = 0; i < PLOT_LEVELS_COUNT; ++i) {
        pen.setColor(QColor::fromRgba(PLOT_COLORS[i]));
        painter.setPen(pen);
        // Counted from the top, unlike the bars and the labels: the lines stand mirrored on purpose.
        const int y = scaleY(static_cast<int>(PLOT_LEVELS[i]));
        painter.drawLine(0, y, plotWidth, y);
    }
}
