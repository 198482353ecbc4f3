#pragma once

#include <QImage>
#include <QPoint>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QVector>
#include <functional>

/// Uses a window like a person: finds things by the word or the picture on them, presses and drags with real
/// mouse events, and looks at the result. UI thread only. The offscreen platform and software rendering are
/// enough.
class ScreenDriver {
public:
    explicit ScreenDriver(QQuickWindow &shownWindow)
        : window(shownWindow) {}

    /// The visible items of an element, parents before children; with `in` only those inside of it. `element`
    /// is the name of the item's document or class, or of one that it is derived from ("Button",
    /// "UavSwitch"). `word` is the word or picture on the item ("usb" for qrc:/icons/usb); "AI: *" means all
    /// words that begin with "AI: ". An empty text means any.
    QVector<QQuickItem *> findAll(const QString &element, const QString &word = {},
                                  const QQuickItem *in = nullptr) const;
    /// The first of them; null if there is none.
    QQuickItem *find(const QString &element, const QString &word = {}, const QQuickItem *in = nullptr) const {
        return findAll(element, word, in).value(0);
    }
    QQuickItem *control(const QString &word) const { return find({}, word); }

    /// All texts in the first item of an element, in order, each followed by '|'.
    std::string words(const QString &element) const;
    /// What is drawn in an item: its parts in the order of drawing, joined by ', '.
    ///   rectangle        COLOUR[/BORDER-COLOUR:BORDER-WIDTH] [rRADIUS] [PLACE]
    ///   picture          NAME PLACE
    ///   text             'TEXT' COLOUR POINTS [bold]
    ///   painted switch   'TEXT' POINTS/LINE-WIDTH COLOUR POSITION [dead]
    /// PLACE is WIDTHxHEIGHT+X+Y in the item; WIDTHxHEIGHT+X= is in the middle of its height. A rectangle
    /// without a place is as large as the item. *NUMBER at the end is an opacity below 1.
    std::string look(const QQuickItem &item) const;
    /// Place and look of each visible item of an element in the first item of `in`, after a redraw. There is
    /// a line break before each.
    std::string looks(const QString &element, const QString &in) const;
    /// "WxH+X+Y" in the window or another item, in pixels, rounded to tenths.
    static std::string place(const QQuickItem &item, const QQuickItem *in = nullptr);
    /// Whether an item is completely inside another one, which may scroll it.
    static bool isInView(const QQuickItem &item, const QQuickItem &in);

    void resize(const QSize &size);

    /// The middle of an item, in the window.
    static QPoint middleOf(const QQuickItem &item);
    void click(const QQuickItem &item) { clickAt(middleOf(item)); }
    void clickAt(QPoint point);
    /// Presses at one point, moves there in steps, and releases at the other.
    void drag(QPoint from, QPoint to);

    /// Presses a slider in its middle and drags its runner to a value. Lets it go if `letGo`. Returns the
    /// point there.
    QPoint slide(const QQuickItem &slider, double value, bool letGo = true);

    /// Scrolls the content of an item up until its end is in view, by drags at the left edge, where no
    /// control is. False if the end does not come into view.
    bool scrollDown(const QQuickItem &item);

    /// Runs the event loop until the condition holds; false if it does not within the time.
    static bool waitFor(const std::function<bool()> &condition, int timeoutMs = 20000);

    /// The picture of the window after a redraw.
    QImage picture() const;

private:
    QQuickWindow &window;
};
