#include "visuals/grid-plot.h"

QRect GridPlot::layOutGrid(const QSize &item, int topPad) {
    grid = QSize(item.width() - leftPad(), item.height() - topPad - labelsHeight());
    return QRect(QPoint(leftPad(), topPad), grid);
}

Words GridPlot::number(int x, int top, std::int64_t number) const {
    return words(x, top + labelFont.ascent, QString::number(number), textColor);
}
