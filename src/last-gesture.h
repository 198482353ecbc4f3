#pragma once

#include <QObject>

/// Knows whether the user's last gesture came from the keyboard or from the mouse or a finger. It filters the
/// events of a window, so it also sees those that a control takes. UI thread.
class LastGesture : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isKeyboard READ isKeyboard NOTIFY isKeyboardChanged)

public:
    using QObject::QObject;

    bool isKeyboard() const { return keyboard; }

    bool eventFilter(QObject *window, QEvent *event) override;

signals:
    void isKeyboardChanged();

private:
    void setKeyboard(bool isKeyboard);

    bool keyboard = false;
};
