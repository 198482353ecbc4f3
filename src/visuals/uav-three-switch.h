#pragma once

#include "visuals/uav-switch-item.h"

/// A painted switch with three positions. While it is enabled, its disc shows the position: no disc, the
/// lower half, the whole disc.
class UavThreeSwitch : public UavSwitchItem {
    Q_OBJECT
    Q_PROPERTY(QString text READ getText WRITE setText NOTIFY textChanged)
    Q_PROPERTY(Position position READ getPosition WRITE setPosition NOTIFY positionChanged)

public:
    enum Position { OFF, FIRST, SECOND };
    Q_ENUM(Position)

    explicit UavThreeSwitch(QQuickItem *parent = nullptr);

    QString getText() const { return text; }
    void setText(const QString &value);
    Position getPosition() const { return position; }
    /// On purpose: emits nothing, because the user did not do it.
    void setPosition(Position value) { position = value; }

    /// Goes to the next position, and from the last one to OFF.
    Q_INVOKABLE void nextPosition();
    /// No caller today.
    Q_INVOKABLE int numPosition() const { return position; }

signals:
    void positionChanged();
    void textChanged();

private:
    void drawChecked(QPainter *painter, int w, int h) override;

    Position position = OFF;
};
