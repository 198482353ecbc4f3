#include "visuals/drawing.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>

namespace {

/// Smooth edges are dear, and so is switching them.
void setSmooth(QPainter &painter, bool smooth) {
    if (painter.testRenderHint(QPainter::Antialiasing) != smooth)
        painter.setRenderHint(QPainter::Antialiasing, smooth);
}

/// Whether smooth edges change no pixel of the device: none of them falls into one, and none is beyond the
/// device, where cutting it off would make it inexact by a hair.
bool isExact(const QRectF &area, const QPainter &painter) {
    const QRectF inPixels = painter.deviceTransform().mapRect(area);
    const QRect whole = inPixels.toRect();
    const QPaintDevice &device = *painter.device();
    return inPixels == whole && QRect(0, 0, device.width(), device.height()).contains(whole);
}

void put(const FilledRect &rect, QPainter &painter) {
    setSmooth(painter, !isExact(rect.place, painter));
    painter.fillRect(rect.place, rect.color);
}

void put(const DrawnLine &line, QPainter &painter) {
    QPen pen(line.color, line.width);
    if (line.dash > 0) {
        pen.setDashPattern({static_cast<qreal>(line.dash), static_cast<qreal>(line.dash)});
        pen.setDashOffset(line.dash);
    }
    setSmooth(painter, true);
    painter.setPen(pen);
    painter.drawLine(line.place);
}

void put(const Words &words, QPainter &painter) {
    setSmooth(painter, true);
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
    setSmooth(painter, true);
}

QFont fontOfSize(int points) {
    QFont font;
    font.setPointSize(qMax(points, 1));
    return font;
}
