#pragma once

#include <QImage>
#include <QPoint>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QVector>
#include <functional>

/// Uses a window as a person does: finds things by the word or the picture on them, presses and drags with
/// real mouse events, and looks at the result. UI thread only; the offscreen platform and software rendering
/// suffice.
class ScreenDriver {
public:
    explicit ScreenDriver(QQuickWindow &shownWindow)
        : window(shownWindow) {}

    using Wanted = std::function<bool(const QQuickItem &)>;

    /// The visible items that are wanted, parents before children. Items of documents have a class name such
    /// as "Button_QMLTYPE_3"; `isA(item, "Button")` takes it for a Button.
    QVector<QQuickItem *> findAll(const Wanted &wanted) const;
    /// The first of them; null if there is none.
    QQuickItem *find(const Wanted &wanted) const;
    static bool isA(const QQuickItem &item, const QString &element);
    /// The visible control with this word on it, or this picture ("usb" for qrc:/icons/usb).
    QQuickItem *control(const QString &wordOrPicture) const;

    /// The middle of an item, in the window.
    static QPoint middleOf(const QQuickItem &item);
    void click(const QQuickItem &item) { clickAt(middleOf(item)); }
    void clickAt(QPoint point);
    /// Presses at one point, moves there in steps, and releases at the other.
    void drag(QPoint from, QPoint to);

    /// Drags what scrolls in an item up, at the left edge, where no control is, until its end is in view;
    /// false if it does not come.
    bool scrollDown(const QQuickItem &item);

    /// Runs the event loop until the condition holds; false if it does not within the time.
    static bool waitFor(const std::function<bool()> &condition, int timeoutMs = 20000);

    /// What the window shows once it is drawn anew.
    QImage picture() const;

private:
    QQuickWindow &window;
};
