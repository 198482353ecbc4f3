#include "uav-switch.h"

#include <QPainter>

UavSwitch::UavSwitch(QQuickItem *parent)
    : QQuickPaintedItem(parent) {
    connect(
        this, &UavSwitch::switchEnabledChanged, this, [this] { update(); });
    connect(this, &UavSwitch::checkedChanged, this, [this] { update(); });
}

void UavSwitch::setSwitchEnabled(bool value) {
    m_enabled = value;
    emit switchEnabledChanged();
}

void UavSwitch::setChecked(bool value) {
    checked = value;
    emit checkedChanged();
}

void UavSwitch::paint(QPainter *painter) {
    paintSwitch(painter, size());
}

void UavSwitch::drawChecked(QPainter *painter, int w, int h) {
    painter->setBrush(colorChecked);
    if (m_enabled && checked)
        painter->drawEllipse(getLabelRect(w, h));
}
