#include "visuals/hist-view.h"

#include "common/bounded.h"
#include "common/sig-type-colors.h"
#include "freq-mode.h"
#include "master-freq-mode.h"

#include <algorithm>

HistView::HistView(QQuickItem *parent)
    : GridPlot(parent) {
    connect(
        this, &HistView::freqsChanged, this,
        [this] {
            paintBackground();
            // A band without a scan yet gets nothing but its labels.
            if (isVisible())
                update();
        });
}

void HistView::setHistory(History history) {
    const std::vector<float> freqs = history.getHistoryFreqs();
    if (history.getMasterMode() != masterMode) {
        masterMode = history.getMasterMode();
        if (freqs.empty() && historyFreqs.empty() && masterMode != NO_BAND)
            historyFreqs =
                FreqMode(MasterFreqMode(masterMode).getMaxRangeFreqMode()).getFreqList()->getFreqs();
        emit freqsChanged();
    }
    if (history.getSize() == 0)
        return;
    if (!hasColumns(freqs)) {
        historyFreqs = freqs;
        emit freqsChanged();
    }
    historyLevels = history.getHistoryLevels();
    historyLen = history.getHistoryLen();
    updateColors();
    emit historyChanged();
}

bool HistView::hasColumns(const std::vector<float> &freqs) const {
    return freqs.size() == historyFreqs.size() &&
           (freqs.empty() || (freqs.front() == historyFreqs.front() && freqs.back() == historyFreqs.back()));
}

void HistView::updateColors() {
    paints.clear();
    const double step = 255.0 / historyLen;
    for (const SigTypeEnum type : SigType::values()) {
        auto &colors = paints[type];
        for (int i = 0; i < historyLen; ++i) {
            QColor color = SigTypeColors::getColor(type);
            color.setAlpha(std::min(static_cast<int>((i + 1) * step), 255));
            colors.push_back(color);
        }
    }
}

QRect HistView::layOut(const QSizeF &item) {
    const QRect area = layOutGrid(item, 0);
    dH = grid.height() / (PLOT_MAX_Y - minLevelDb + 1);
    measureFreqs();
    return area;
}

void HistView::measureFreqs() {
    rangeMHz = historyFreqs.empty() ? 0 : bounded(historyFreqs.back() - historyFreqs.front());
    if (rangeMHz <= 0 || grid.width() <= 0)
        return;
    div = static_cast<int>(labelStep([&](std::int64_t step) {
        return 1.2 * 4 * charW * (rangeMHz / static_cast<float>(step)) <= grid.width();
    }));
    dXByFreq = static_cast<float>(grid.width()) / rangeMHz;
}

template <typename Draw>
void HistView::eachLabelledFreq(Draw draw) const {
    if (rangeMHz <= 0)
        return;
    // The distance is counted, not the frequency, which could be too large for a float to grow by one step.
    for (int distance = 0; static_cast<float>(distance) <= rangeMHz; distance += div) {
        const auto distanceMHz = static_cast<float>(distance);
        draw(historyFreqs.front() + distanceMHz, static_cast<int>(dXByFreq * distanceMHz));
    }
}

void HistView::paintLegend(QPainter &painter) {
    if (historyFreqs.empty())
        return;
    painter.setPen(linePen(textColor));
    for (int level = MIN_LABEL_DB; level <= PLOT_MAX_Y; level += LEVEL_STEP_DB)
        drawNumber(painter, charW, levelY(level) - textSize, level);
    const int left = 4 * charW;
    eachLabelledFreq([&](float freq, int x) {
        const int labelW = charW * (freq >= 1000 ? 4 : 3);
        const int labelX = left + x - labelW / 2;
        if (labelX + labelW <= left + grid.width())
            drawNumber(painter, labelX, grid.height(), static_cast<int>(bounded(freq)));
    });
}

void HistView::paintData(QPainter &painter) {
    if (historyFreqs.empty())
        return;
    paintBlocks(painter);
    painter.setPen(linePen(borderColor));
    for (int level = MIN_LABEL_DB; level <= PLOT_MAX_Y; level += LEVEL_STEP_DB)
        drawRow(painter, levelY(level));
    eachLabelledFreq([&](float, int x) { drawColumn(painter, x); });
    drawRow(painter, 0);
    drawRow(painter, grid.height());
    drawColumn(painter, 0);
    drawColumn(painter, grid.width() - lineWidth);
}

void HistView::paintBlocks(QPainter &painter) const {
    painter.setPen(Qt::NoPen);
    const int cellW = grid.width() / static_cast<int>(historyFreqs.size());
    // The newest row takes the last colour, however many rows there are.
    std::size_t age = static_cast<std::size_t>(historyLen) - historyLevels.size();
    for (const auto &row : historyLevels) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const auto colors = paints.find(row[column].sigType);
            if (colors != paints.end() && age < colors->second.size())
                painter.setBrush(colors->second[age]);
            const int level = std::min(static_cast<int>(bounded(row[column].rssi)), PLOT_MAX_Y);
            painter.drawRect(static_cast<int>(column) * cellW, levelY(level), cellW, dH);
        }
        ++age;
    }
}
