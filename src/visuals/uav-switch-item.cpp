#include "visuals/uav-switch-item.h"

UavSwitchItem::UavSwitchItem(QQuickItem *parent)
    : QQuickPaintedItem(parent) {
    connect(
        this, &UavSwitchItem::switchEnabledChanged, this, [this] { update(); });
}

void UavSwitchItem::setSwitchEnabled(bool value) {
    m_enabled = value;
    emit switchEnabledChanged();
}

void UavSwitchItem::paint(QPainter *painter) {
    paintSwitch(painter, size());
}
