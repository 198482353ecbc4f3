#include "visuals/freq-plot.h"

#include "common/bounded.h"
#include "common/sig-type-colors.h"

#include <QLine>
#include <QVector>

void FreqPlot::setHistory(History history) {
    masterMode = history.getMasterMode();
    followStrongest(history.getHistoryLevels(), history.getHistoryFreqs());
    emit historyChanged();
}

void FreqPlot::followStrongest(const Rows &levels, const std::vector<float> &freqs) {
    points.clear();
    if (levels.empty() || freqs.empty())
        return;
    const auto &newest = levels.back();
    // Stays 0 where nothing is stronger than the first column, which so is never followed itself, on purpose.
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
    // The oldest row is left out on purpose.
    for (auto row = levels.rbegin(); row != levels.rend() - 1 && row->at(best).sigType == sigType; ++row)
        points.push_back(row->at(best));
}

int FreqPlot::getY(float rssi) const {
    if (rssi > PLOT_MAX_Y)
        return grid.height() - lineWidth;
    if (!(rssi >= PLOT_MIN_Y))
        return 0;
    return static_cast<int>(static_cast<float>(grid.height()) * (rssi - PLOT_MIN_Y) /
                            (PLOT_MAX_Y - PLOT_MIN_Y));
}

int FreqPlot::getLabelWidth(std::int64_t value) const {
    int width = 0;
    for (; value > 0; value /= 10)
        width += charW;
    return width;
}

QRect FreqPlot::layOut(const QSizeF &item) {
    itemHeight = static_cast<int>(item.height());
    const QRect area = layOutGrid(item, textSize);
    return area.isEmpty() ? area : area.adjusted(0, 0, 0, labelsHeight());
}

void FreqPlot::paintLegend(QPainter &painter) {
    painter.setPen(linePen(textColor));
    for (int level = PLOT_MIN_Y; level <= PLOT_MAX_Y; level += LEVEL_STEP_DB) {
        const int x = level < -99 ? 0 : charW;
        const int above = grid.height() * (level - PLOT_MIN_Y) / (PLOT_MAX_Y - PLOT_MIN_Y);
        const QString label = QString::number(level);
        // In fonts with wide digits the longest labels would run under the picture.
        const qreal room = 4 * charW - x, wanted = painter.fontMetrics().horizontalAdvance(label);
        painter.save();
        painter.translate(x, itemHeight - static_cast<int>(0.5 * textSize + above) - textSize);
        painter.scale(wanted > room ? room / wanted : 1, 1);
        painter.drawText(0, 0, label);
        painter.restore();
    }
}

void FreqPlot::paintData(QPainter &painter) {
    painter.setPen(linePen(borderColor));
    for (int level = PLOT_MIN_Y; level <= PLOT_MAX_Y; level += LEVEL_STEP_DB)
        drawRow(painter, grid.height() * (level - PLOT_MIN_Y) / (PLOT_MAX_Y - PLOT_MIN_Y));
    if (points.size() <= 1) {
        const int step = static_cast<int>(0.18 * grid.width());
        for (int x = 0; step > 0 && x < grid.width(); x += step)
            drawColumn(painter, x);
        return;
    }
    // Scans of one and the same millisecond have no axis and no curve.
    const std::int64_t spanMs = points.front().timeMsg - points.back().timeMsg;
    if (spanMs > 0)
        paintTimeAxis(painter, spanMs);
    painter.fillRect(textSize, textSize, textSize, textSize, SigTypeColors::getColor(sigType));
    if (spanMs > 0)
        paintCurve(painter, spanMs);
    paintCaption(painter);
}

void FreqPlot::paintTimeAxis(QPainter &painter, std::int64_t spanMs) const {
    const std::int64_t width = grid.width();
    // Seconds for a long span, milliseconds for a short one.
    const std::int64_t total = spanMs > 1000 ? spanMs / 1000 : spanMs;
    const std::int64_t step = labelStep([&](std::int64_t candidate) {
        return total / candidate * getLabelWidth(total / candidate) * 2 <= width;
    });
    for (std::int64_t t = 0; t < total; t += step) {
        const int x = static_cast<int>(width - width * t / total);
        painter.setPen(linePen(borderColor));
        drawColumn(painter, x);
        const int labelW = getLabelWidth(t);
        const int labelX = static_cast<int>(x - 0.5 * labelW);
        painter.setPen(linePen(textColor));
        if (labelX > 0)
            drawNumber(painter, labelX, grid.height(), t);
    }
}

void FreqPlot::paintCurve(QPainter &painter, std::int64_t spanMs) const {
    const auto place = [&](const History::_HistoryPoint &point) {
        return QPoint(static_cast<int>(grid.width() * (point.timeMsg - points.back().timeMsg) / spanMs),
                      getY(point.rssi));
    };
    QVector<QLine> lines;
    for (std::size_t i = 1; i < points.size(); ++i)
        lines.append(QLine(place(points[i - 1]), place(points[i])));
    painter.setPen(linePen(SigTypeColors::getColor(sigType)));
    painter.drawLines(lines);
}

void FreqPlot::paintCaption(QPainter &painter) const {
    QFont font = painter.font();
    font.setPointSize(qMax(static_cast<int>(1.5 * textSize), 1));
    painter.setFont(font);
    painter.setPen(linePen(textColor));
    const QString unit = lang == "ru" ? QStringLiteral("МГц ") : QStringLiteral("MHz ");
    painter.drawText(2 * textSize + charW, static_cast<int>(2.5 * textSize),
                     QString::number(freq) + unit + QString::fromStdString(SigType(sigType).name()));
}
