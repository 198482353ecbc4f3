#include "visuals/hist-view.h"

#include "freq-mode.h"
#include "visuals/freq-axis.h"
#include "visuals/level-axis.h"
#include "visuals/persistence-blocks.h"

namespace {

constexpr int MIN_LABEL_DB = -95;

} // namespace

HistView::HistView(QQuickItem *parent)
    : GridPlot(parent) {
    connect(
        this, &HistView::freqsChanged, this,
        [this] {
            paintBackground();
            // A band without a scan shows only its labels.
            if (isVisible())
                update();
        });
}

void HistView::setHistory(History history) {
    const std::vector<float> freqs = history.getHistoryFreqs();
    if (history.getMasterMode() != masterMode) {
        masterMode = history.getMasterMode();
        if (freqs.empty() && historyFreqs.empty() && masterMode != NO_BAND)
            historyFreqs = MasterFreqMode(masterMode).getWidestRange().getFreqList()->getFreqs();
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
    emit historyChanged();
}

bool HistView::hasColumns(const std::vector<float> &freqs) const {
    return freqs.size() == historyFreqs.size() &&
           (freqs.empty() || (freqs.front() == historyFreqs.front() && freqs.back() == historyFreqs.back()));
}

int HistView::rowHeight() const {
    return grid.height() / (LevelAxis::PLOT_MAX_Y - LevelAxis::minLevelDb + 1);
}

QRect HistView::layOut(const QSize &item) {
    return layOutGrid(item, 0);
}

Drawing HistView::legend() const {
    Drawing drawing;
    if (historyFreqs.empty())
        return drawing;
    for (const int level : LevelAxis::labels(MIN_LABEL_DB)) {
        const int top = LevelAxis::blockY(static_cast<float>(level), rowHeight()) - textSize;
        drawing.push_back(levelLabel(labelFont.charW, top + labelFont.ascent, level));
    }
    for (const Tick &tick : columnTicks(historyFreqs, grid.width(), labelFont.charW))
        if (tick.hasLabel)
            drawing.push_back(number(leftPad() + tick.labelX, grid.height(), tick.number));
    return drawing;
}

Drawing HistView::data() const {
    if (historyFreqs.empty())
        return {};
    const std::vector<FilledRect> blocks = persistenceBlocks(
        historyLevels, historyLen, static_cast<int>(historyFreqs.size()), grid.width(), rowHeight());
    Drawing drawing(blocks.begin(), blocks.end());
    for (const int level : LevelAxis::labels(MIN_LABEL_DB))
        drawing.push_back(row(LevelAxis::blockY(level, rowHeight())));
    for (const Tick &tick : columnTicks(historyFreqs, grid.width(), labelFont.charW))
        drawing.push_back(column(tick.x));
    for (const DrawnLine &frame : {row(0), row(grid.height()), column(0), column(grid.width() - lineWidth)})
        drawing.push_back(frame);
    return drawing;
}
