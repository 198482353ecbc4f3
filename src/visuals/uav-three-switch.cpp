#include "uav-three-switch.h"

#include <QPainter>

UavThreeSwitch::UavThreeSwitch(QQuickItem *parent)
    : UavSwitchItem(parent) {
    connect(
        this, &UavThreeSwitch::positionChanged, this, [this] { update(); });
    connect(this, &UavThreeSwitch::textChanged, this, [this] { update(); });
}

void UavThreeSwitch::setText(const QString &value) {
    text = value;
    emit textChanged();
}

void UavThreeSwitch::nextPosition() {
    position = position == SECOND ? OFF : static_cast<Position>(position + 1);
    emit positionChanged();
}

void UavThreeSwitch::drawChecked(QPainter *painter, int w, int h) {
    if (!m_enabled || position == OFF)
        return;
    painter->setBrush(colorChecked);
    const QRectF disc = getLabelRect(w, h);
    if (position == FIRST)
        painter->drawPie(disc, 180 * 16, 180 * 16); // the lower half, in sixteenths of a degree
    else
        painter->drawEllipse(disc);
}
