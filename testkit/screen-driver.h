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

    /// The visible items of an element, in another item if there is one, parents before children. An element
    /// is known by the name of its document or its class ("Button", "UavSwitch"), also where others are made
    /// of it. An item is known by its word or its picture ("usb" for qrc:/icons/usb), and "AI: *" stands for
    /// all words that begin so. Empty stands for any.
    QVector<QQuickItem *> findAll(const QString &element, const QString &word = {},
                                  const QQuickItem *in = nullptr) const;
    /// The first of them; null if there is none.
    QQuickItem *find(const QString &element, const QString &word = {}, const QQuickItem *in = nullptr) const {
        return findAll(element, word, in).value(0);
    }
    QQuickItem *control(const QString &word) const { return find({}, word); }

    /// Everything written in the first item of an element, in its order, each followed by '|'.
    std::string words(const QString &element) const;
    /// What is drawn in an item, in its order: rectangles by colour/border and place, pictures by name and
    /// place, texts with colour and size, painted switches with size of text/line, colour and position. A
    /// place is left out where it is that of the item, and ends in '=' in the item's middle; an opacity is
    /// left out where it is 1.
    std::string look(const QQuickItem &item) const;
    /// Place and look of each visible item of an element in the first of another, once all are in their
    /// places. A line break stands before each.
    std::string looks(const QString &element, const QString &in) const;
    /// "WxH+X+Y", in the window or another item, in pixels to a tenth.
    static std::string place(const QQuickItem &item, const QQuickItem *in = nullptr);
    /// Whether all of an item is inside another, which may scroll it.
    static bool isInView(const QQuickItem &item, const QQuickItem &in);

    void resize(const QSize &size);

    /// The middle of an item, in the window.
    static QPoint middleOf(const QQuickItem &item);
    void click(const QQuickItem &item) { clickAt(middleOf(item)); }
    void clickAt(QPoint point);
    /// Presses at one point, moves there in steps, and releases at the other.
    void drag(QPoint from, QPoint to);

    /// Presses a slider in its middle, drags its runner to a value, and lets it go, or does not. Returns
    /// where.
    QPoint slide(const QQuickItem &slider, double value, bool letGo = true);

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
