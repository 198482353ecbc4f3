#include "visuals/grid-plot.h"

#include <QFontMetrics>

void GridPlot::setTextColor(const QColor &color) {
    textColor = color;
    emit sizeChanged();
}

QRect GridPlot::layOutGrid(const QSizeF &item, int topPad) {
    charW = QFontMetrics(labelFont()).averageCharWidth();
    const int leftPad = 4 * charW;
    grid = QSize(static_cast<int>(item.width()) - leftPad,
                 static_cast<int>(item.height()) - topPad - labelsHeight());
    return QRect(QPoint(leftPad, topPad), grid);
}
