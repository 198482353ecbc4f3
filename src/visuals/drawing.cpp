#include "visuals/drawing.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QPixmapCache>

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

QPen penOf(const DrawnLine &line) {
    QPen pen(line.color, line.width);
    if (line.dash > 0) {
        pen.setDashPattern({static_cast<qreal>(line.dash), static_cast<qreal>(line.dash)});
        pen.setDashOffset(line.dash);
    }
    return pen;
}

/// Whether a picture of the line gives the same pixels: a wider one covers pixels as a whole, which are mixed
/// in another way, at another scale the dashes end within pixels, and what is beyond the device is cut off
/// inexactly.
bool isSamePicture(const DrawnLine &line, const QPainter &painter) {
    const QTransform &transform = painter.deviceTransform();
    const QPaintDevice &device = *painter.device();
    const QRectF inPixels(transform.map(QPointF(line.place.p1())), transform.map(QPointF(line.place.p2())));
    return line.dash > 0 && line.width == 1 && line.place.dy() == 0 &&
           transform.type() <= QTransform::TxTranslate && inPixels == inPixels.toRect() &&
           inPixels.left() >= 0 && inPixels.right() <= device.width() && inPixels.top() >= 1 &&
           inPixels.top() < device.height();
}

/// A dashed line from (1, 1), as its dashes have ends of half a pixel. They are dear, and a view draws the
/// same lines again with each scan.
QPixmap pictureOf(const DrawnLine &line) {
    const QString key = QStringLiteral("%1 %2 %3").arg(line.place.dx()).arg(line.dash).arg(line.color.rgba());
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

void put(const DrawnLine &line, QPainter &painter) {
    if (isSamePicture(line, painter)) {
        painter.drawPixmap(line.place.p1() - QPoint(1, 1), pictureOf(line));
        return;
    }
    setSmooth(painter, true);
    painter.setPen(penOf(line));
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
