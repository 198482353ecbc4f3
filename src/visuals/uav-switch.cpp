#include "uav-switch.h"

#include <QPainter>

UavSwitch::UavSwitch(QQuickItem *parent)
    : UavSwitchItem(parent) {
    connect(
        this, &UavSwitch::checkedChanged, this, [this] { update(); });
}

void UavSwitch::setChecked(bool value) {
    checked = value;
    emit checkedChanged();
}

void UavSwitch::drawChecked(QPainter *painter, int w, int h) {
    painter->setBrush(colorChecked);
    if (m_enabled && checked)
        painter->drawEllipse(getLabelRect(w, h));
}
