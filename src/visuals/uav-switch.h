#pragma once

#include "visuals/uav-switch-item.h"

/// A painted switch with two positions. Its disc shows while it is enabled and checked.
class UavSwitch : public UavSwitchItem {
    Q_OBJECT
    Q_PROPERTY(QString text MEMBER text WRITE setText)
    Q_PROPERTY(bool checked READ getChecked WRITE setChecked NOTIFY checkedChanged)

public:
    explicit UavSwitch(QQuickItem *parent = nullptr);

    void setText(const QString &value) { text = value, update(); }
    bool getChecked() const { return checked; }
    void setChecked(bool value);

signals:
    void checkedChanged();

private:
    void drawChecked(QPainter *painter, int w, int h) override;

    bool checked = false;
};
