#pragma once

#include "visuals/abstract-uav-switch.h"

#include <QQuickPaintedItem>

/// A painted switch of two positions. Its disc shows while it is enabled and checked.
class UavSwitch : public QQuickPaintedItem, private AbstractUavSwitch {
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor MEMBER bckgClr WRITE setBackgroundColor)
    Q_PROPERTY(int lineWidth MEMBER lineWidth WRITE setLineWidth)
    Q_PROPERTY(int textSize MEMBER textSize WRITE setTextSize)
    Q_PROPERTY(QString text MEMBER text WRITE setText)
    Q_PROPERTY(bool switchEnabled READ getSwitchEnabled WRITE setSwitchEnabled NOTIFY switchEnabledChanged)
    Q_PROPERTY(bool checked READ getChecked WRITE setChecked NOTIFY checkedChanged)

public:
    explicit UavSwitch(QQuickItem *parent = nullptr);

    // These have no signal of their own, but what they change is painted anew.
    void setBackgroundColor(const QColor &value) { bckgClr = value, update(); }
    void setLineWidth(int value) { lineWidth = value, update(); }
    void setTextSize(int value) { textSize = value, update(); }
    void setText(const QString &value) { text = value, update(); }

    bool getSwitchEnabled() const { return m_enabled; }
    void setSwitchEnabled(bool value);
    bool getChecked() const { return checked; }
    void setChecked(bool value);

    void paint(QPainter *painter) override;

signals:
    void switchEnabledChanged();
    void checkedChanged();

private:
    void drawChecked(QPainter *painter, int w, int h) override;

    bool checked = false;
};
