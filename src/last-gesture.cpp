#include "last-gesture.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

bool LastGesture::eventFilter(QObject *, QEvent *event) {
    constexpr int keys[] = {Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,
                            Qt::Key_Down, Qt::Key_Space,   Qt::Key_Enter, Qt::Key_Return, Qt::Key_Escape};
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (std::find(std::begin(keys), std::end(keys), key) != std::end(keys))
            setKeyboard(true);
    } else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
        setKeyboard(false);
    }
    return false;
}

void LastGesture::setKeyboard(bool isKeyboard) {
    if (isKeyboard == keyboard)
        return;
    keyboard = isKeyboard;
    emit isKeyboardChanged();
}
