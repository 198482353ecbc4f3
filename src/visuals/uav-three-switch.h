#pragma once

#include "visuals/abstract-uav-switch.h"

#include <QQuickPaintedItem>

/// A painted switch of three positions. While it is enabled its disc shows by halves: none, the lower half,
/// the whole.
class UavThreeSwitch : public QQuickPaintedItem, private AbstractUavSwitch {
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor MEMBER bckgClr WRITE setBackgroundColor)
    Q_PROPERTY(int lineWidth MEMBER lineWidth WRITE setLineWidth)
    Q_PROPERTY(int textSize MEMBER textSize WRITE setTextSize)
    Q_PROPERTY(QString text READ getText WRITE setText NOTIFY textChanged)
    Q_PROPERTY(bool switchEnabled READ getSwitchEnabled WRITE setSwitchEnabled NOTIFY switchEnabledChanged)
    Q_PROPERTY(Position position READ getPosition WRITE setPosition NOTIFY positionChanged)

public:
    enum Position { OFF, FIRST, SECOND };
    Q_ENUM(Position)

    explicit UavThreeSwitch(QQuickItem *parent = nullptr);

    // These have no signal of their own, but what they change is painted anew.
    void setBackgroundColor(const QColor &value) { bckgClr = value, update(); }
    void setLineWidth(int value) { lineWidth = value, update(); }
    void setTextSize(int value) { textSize = value, update(); }

    QString getText() const { return text; }
    void setText(const QString &value);
    bool getSwitchEnabled() const { return m_enabled; }
    void setSwitchEnabled(bool value);
    Position getPosition() const { return position; }
    /// Emits nothing: only a step of the user does.
    void setPosition(Position value) { position = value; }

    /// Steps on, from the last position to OFF.
    Q_INVOKABLE void nextPosition();
    Q_INVOKABLE int numPosition() const { return position; }

    void paint(QPainter *painter) override;

signals:
    void positionChanged();
    void switchEnabledChanged();
    void textChanged();

private:
    void drawChecked(QPainter *painter, int w, int h) override;

    Position position = OFF;
};
