#include "visuals/grid-plot.h"

#include <QFontMetrics>

void GridPlot::setTextColor(const QColor &color) {
    textColor = color;
    emit sizeChanged();
}

QRect GridPlot::layOutGrid(const QSizeF &item, int topPad) {
    const QFontMetrics metrics(labelFont());
    charW = metrics.averageCharWidth();
    ascent = metrics.ascent();
    const int leftPad = 4 * charW;
    grid = QSize(static_cast<int>(item.width()) - leftPad,
                 static_cast<int>(item.height()) - topPad - labelsHeight());
    return QRect(QPoint(leftPad, topPad), grid);
}

void GridPlot::drawNumber(QPainter &painter, int x, int top, std::int64_t number) const {
    painter.drawText(x, top + ascent, QString::number(number));
}
