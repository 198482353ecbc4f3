#include "abstract-uav-switch.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPolygonF>

const QColor AbstractUavSwitch::colorChecked = QColor::fromRgba(0xff41709a);
const QColor AbstractUavSwitch::switchBack = QColor::fromRgba(0xffc4d5ec);
const QColor AbstractUavSwitch::textBack = QColor::fromRgba(0xff5b9bd5);

namespace {

constexpr int FULL_CIRCLE = 360 * 16; // in sixteenths of a degree, the painter's unit

bool fits(const QFont &font, QPaintDevice *device, const QString &text, const QRect &rect) {
    const QFontMetrics metrics(font, device);
    return metrics.horizontalAdvance(text) <= rect.width() && metrics.height() <= rect.height();
}

} // namespace

void AbstractUavSwitch::paintSwitch(QPainter *painter, const QSizeF &item) {
    const int h = static_cast<int>(item.height() - 2 * lineWidth);
    const int w = static_cast<int>(item.width() - 2 * lineWidth);
    painter->setRenderHint(QPainter::Antialiasing);
    drawBorder(painter, w, h);
    drawText(painter, w, h);
    drawChecked(painter, w, h);
}

void AbstractUavSwitch::drawBorder(QPainter *painter, int w, int h) const {
    painter->setPen(Qt::NoPen);
    painter->setBrush(bckgClr);
    painter->drawRect(lineWidth, lineWidth, w, h);

    const QPolygonF label(QVector<QPointF>{{COEFF_X * h, COEFF_Y * h},
                                           {qreal(h), 0},
                                           {qreal(w), 0},
                                           {qreal(w), qreal(h)},
                                           {qreal(h), qreal(h)},
                                           {COEFF_X * h, COEFF_X * h}});
    painter->setBrush(m_enabled ? textBack : bckgClr);
    painter->drawPolygon(label);
    painter->setPen(QPen(Qt::white, lineWidth));
    // On purpose: not closed. The head covers that side.
    painter->drawPolyline(label);

    const QRect head(lineWidth, lineWidth, h, h);
    painter->setBrush(switchBack);
    painter->drawEllipse(head);
    painter->drawArc(head, 0, FULL_CIRCLE);
}

void AbstractUavSwitch::drawText(QPainter *painter, int w, int h) const {
    const QRect label(lineWidth + h, lineWidth, w - (h + 2 * lineWidth), h - 2 * lineWidth);
    if (textSize < 1 || label.isEmpty())
        return;
    QFont font = painter->font();
    font.setPointSize(textSize);
    while (font.pointSize() > 1 && !fits(font, painter->device(), text, label))
        font.setPointSize(font.pointSize() - 1);
    painter->setFont(font);
    painter->drawText(label, Qt::AlignCenter, text);
}

QRectF AbstractUavSwitch::getLabelRect(int, int h) const {
    const qreal start = 0.25 * h - 2 * lineWidth;
    return {QPointF(start, start), QPointF(0.875 * h, 0.875 * h)};
}
