#include "visuals/freq-plot.h"

#include "common/sig-type-colors.h"
#include "visuals/level-axis.h"
#include "visuals/time-axis.h"

void FreqPlot::setTextColor(const QColor &color) {
    GridPlot::setTextColor(color);
    emit sizeChanged();
}

void FreqPlot::setHistory(History history) {
    masterMode = history.getMasterMode();
    course.follow(history.getHistoryLevels(), history.getHistoryFreqs());
    emit historyChanged();
}

QRect FreqPlot::layOut(const QSize &item) {
    const QRect area = layOutGrid(item, textSize);
    return area.isEmpty() ? area : area.adjusted(0, 0, 0, labelsHeight());
}

Drawing FreqPlot::legend() const {
    Drawing drawing;
    const int bottom = grid.height() + labelsHeight();
    for (const int level : LevelAxis::labels()) {
        const int above = LevelAxis::courseY(static_cast<float>(level), grid.height(), lineWidth);
        drawing.push_back(levelLabel(level < -99 ? 0 : labelFont.charW,
                                     bottom - static_cast<int>(0.5 * textSize + above), level));
    }
    return drawing;
}

Drawing FreqPlot::data() const {
    Drawing drawing;
    for (const int level : LevelAxis::labels())
        drawing.push_back(row(LevelAxis::courseY(static_cast<float>(level), grid.height(), lineWidth)));
    if (course.points.size() <= 1) {
        for (const int x : linesWithoutTime(grid.width()))
            drawing.push_back(column(x));
        return drawing;
    }
    for (const Tick &tick : timeTicks(course.spanMs(), grid.width(), labelFont.charW)) {
        drawing.push_back(column(tick.x));
        if (tick.hasLabel)
            drawing.push_back(number(tick.labelX, grid.height(), tick.number));
    }
    const QColor color = SigTypeColors::getColor(course.sigType);
    drawing.push_back(FilledRect{QRect(textSize, textSize, textSize, textSize), color});
    for (const QLine &line : course.curve(grid, lineWidth))
        drawing.push_back(DrawnLine{line, color, lineWidth});
    drawing.push_back(caption());
    return drawing;
}

Words FreqPlot::caption() const {
    const QString unit = lang == "ru" ? QStringLiteral("МГц ") : QStringLiteral("MHz ");
    return {QPoint(2 * textSize + labelFont.charW, static_cast<int>(2.5 * textSize)),
            QString::number(course.freq) + unit + QString::fromStdString(SigType(course.sigType).name()),
            textColor, static_cast<int>(1.5 * textSize)};
}
