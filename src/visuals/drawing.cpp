#include "visuals/drawing.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>

namespace {

void put(const FilledRect &rect, QPainter &painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(rect.color);
    painter.drawRect(rect.place);
}

void put(const DrawnLine &line, QPainter &painter) {
    QPen pen(line.color, line.width);
    if (line.dash > 0) {
        pen.setDashPattern({static_cast<qreal>(line.dash), static_cast<qreal>(line.dash)});
        pen.setDashOffset(line.dash);
    }
    painter.setPen(pen);
    painter.drawLine(line.place);
}

void put(const Words &words, QPainter &painter) {
    painter.setFont(fontOfSize(words.pointSize));
    painter.setPen(words.color);
    const int width = words.room > 0 ? painter.fontMetrics().horizontalAdvance(words.text) : 0;
    if (width <= words.room) {
        painter.drawText(words.place, words.text);
        return;
    }
    painter.save();
    painter.translate(words.place);
    painter.scale(static_cast<qreal>(words.room) / width, 1);
    painter.drawText(0, 0, words.text);
    painter.restore();
}

} // namespace

void paintDrawing(const Drawing &drawing, QPainter &painter) {
    for (const auto &shape : drawing)
        std::visit([&](const auto &known) { put(known, painter); }, shape);
}

QFont fontOfSize(int points) {
    QFont font;
    font.setPointSize(qMax(points, 1));
    return font;
}
