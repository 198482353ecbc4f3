#pragma once

#include "visuals/uav-switch-item.h"

/// A painted switch of three positions. While it is enabled its disc shows by halves: none, the lower half,
/// the whole.
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
    /// On purpose: emits nothing, since it is no step of the user's.
    void setPosition(Position value) { position = value; }

    /// Steps on, from the last position to OFF.
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
