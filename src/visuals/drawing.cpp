#include "visuals/drawing.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QPixmapCache>
#include <QtMath>

namespace {

/// Smooth edges cost much time, and so does switching them on and off.
void setSmooth(QPainter &painter, bool smooth) {
    if (painter.testRenderHint(QPainter::Antialiasing) != smooth)
        painter.setRenderHint(QPainter::Antialiasing, smooth);
}

/// The part of the paint device where smooth edges change nothing, in the drawing's pixels. There every edge
/// lies between two pixels of the device. A rectangle that reaches beyond the device is excluded, because
/// clipping makes it slightly inexact. The result is empty if the scale is not a whole number.
QRect exactArea(const QPainter &painter) {
    const QTransform &transform = painter.deviceTransform();
    const double scale = transform.m11();
    if (scale < 1 || scale != qRound(scale) ||
        transform != QTransform(scale, 0, 0, scale, qRound(transform.dx()), qRound(transform.dy())))
        return {};
    const QSize device(painter.device()->width(), painter.device()->height());
    const QRectF area = transform.inverted().mapRect(QRectF({0, 0}, device));
    return {QPoint(qCeil(area.left()), qCeil(area.top())),
            QPoint(qFloor(area.right()) - 1, qFloor(area.bottom()) - 1)};
}

void put(const FilledRect &rect, QPainter &painter, const QRect &exact) {
    setSmooth(painter, !exact.contains(rect.place));
    painter.fillRect(rect.place, rect.color);
}

QPen penOf(const DrawnLine &line) {
    QPen pen(line.color, line.width);
    if (line.dash > 0) {
        pen.setDashPattern({static_cast<qreal>(line.dash), static_cast<qreal>(line.dash)});
        pen.setDashOffset(line.dash);
    }
    return pen;
}

/// Whether a stored picture of the line gives the same pixels as the line itself. A wider line covers whole
/// pixels, and those are blended in another way.
bool isSamePicture(const DrawnLine &line, const QPainter &painter, const QRect &exact) {
    return line.dash > 0 && line.width == 1 && line.place.dy() == 0 && painter.deviceTransform().m11() == 1 &&
           exact.contains({line.place.p1() - QPoint(0, 1), QSize(line.place.dx(), 2)});
}

/// A picture of a dashed line. The line begins at (1, 1), because its dashes have ends of half a pixel.
/// Dashes cost much time, and a view draws the same lines with each scan.
QPixmap pictureOf(const DrawnLine &line) {
    const QString key =
        QStringLiteral("dashes %1 %2 %3").arg(line.place.dx()).arg(line.dash).arg(line.color.rgba());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap(line.place.dx() + 2, 2);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(penOf(line));
        painter.drawLine(1, 1, 1 + line.place.dx(), 1);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

void put(const DrawnLine &line, QPainter &painter, const QRect &exact) {
    if (isSamePicture(line, painter, exact)) {
        painter.drawPixmap(line.place.p1() - QPoint(1, 1), pictureOf(line));
        return;
    }
    setSmooth(painter, true);
    painter.setPen(penOf(line));
    painter.drawLine(line.place);
}

void put(const Words &words, QPainter &painter, const QRect &) {
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
    const QRect exact = exactArea(painter);
    for (const auto &shape : drawing)
        std::visit([&](const auto &known) { put(known, painter, exact); }, shape);
    setSmooth(painter, true);
}

QFont fontOfSize(int points) {
    QFont font;
    font.setPointSize(qMax(points, 1));
    return font;
}
