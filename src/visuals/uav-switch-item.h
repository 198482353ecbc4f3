#pragma once

#include "visuals/abstract-uav-switch.h"

#include <QQuickPaintedItem>

/// The common part of the painted switches as items of a screen.
class UavSwitchItem : public QQuickPaintedItem, protected AbstractUavSwitch {
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor MEMBER bckgClr WRITE setBackgroundColor)
    Q_PROPERTY(int lineWidth MEMBER lineWidth WRITE setLineWidth)
    Q_PROPERTY(int textSize MEMBER textSize WRITE setTextSize)
    Q_PROPERTY(bool switchEnabled READ getSwitchEnabled WRITE setSwitchEnabled NOTIFY switchEnabledChanged)

public:
    explicit UavSwitchItem(QQuickItem *parent = nullptr);

    // These have no signal, but a change repaints the switch.
    void setBackgroundColor(const QColor &value) { bckgClr = value, update(); }
    void setLineWidth(int value) { lineWidth = value, update(); }
    void setTextSize(int value) { textSize = value, update(); }

    bool getSwitchEnabled() const { return m_enabled; }
    void setSwitchEnabled(bool value);

    void paint(QPainter *painter) override;

signals:
    void switchEnabledChanged();
};
