#include "screen-driver.h"

#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

namespace {

void collect(QQuickItem *item, const ScreenDriver::Wanted &wanted, QVector<QQuickItem *> &found) {
    if (!item->isVisible())
        return;
    if (wanted(*item))
        found.append(item);
    for (QQuickItem *child : item->childItems())
        collect(child, wanted, found);
}

} // namespace

QVector<QQuickItem *> ScreenDriver::findAll(const Wanted &wanted) const {
    QVector<QQuickItem *> found;
    collect(window.contentItem(), wanted, found);
    return found;
}

QQuickItem *ScreenDriver::find(const Wanted &wanted) const {
    return findAll(wanted).value(0);
}

bool ScreenDriver::isA(const QQuickItem &item, const QString &element) {
    return QString(item.metaObject()->className()).section('_', 0, 0) == element;
}

QQuickItem *ScreenDriver::control(const QString &wordOrPicture) const {
    return find([&](const QQuickItem &item) {
        const bool hasPicture = item.property("iconSource").toUrl().fileName() == wordOrPicture;
        return hasPicture || item.property("text").toString() == wordOrPicture;
    });
}

QPoint ScreenDriver::middleOf(const QQuickItem &item) {
    return item.mapToScene(item.boundingRect().center()).toPoint();
}

void ScreenDriver::clickAt(QPoint point) {
    QTest::mouseClick(&window, Qt::LeftButton, {}, point);
}

void ScreenDriver::drag(QPoint from, QPoint to) {
    constexpr int steps = 8;
    QTest::mousePress(&window, Qt::LeftButton, {}, from);
    for (int i = 1; i <= steps; ++i)
        QTest::mouseMove(&window, from + (to - from) * i / steps);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, to);
}

bool ScreenDriver::scrollDown(const QQuickItem &item) {
    const QQuickItem *flickable = find(
        [&](const QQuickItem &each) { return isA(each, "QQuickFlickable") && item.isAncestorOf(&each); });
    return flickable && waitFor([&] {
               drag(item.mapToScene({2, item.height() * 0.9}).toPoint(),
                    item.mapToScene({2, item.height() * 0.1}).toPoint());
               return flickable->property("atYEnd").toBool();
           });
}

bool ScreenDriver::waitFor(const std::function<bool()> &condition, int timeoutMs) {
    return QTest::qWaitFor(condition, timeoutMs);
}

QImage ScreenDriver::picture() const {
    QSignalSpy drawn(&window, &QQuickWindow::frameSwapped);
    window.update();
    if (drawn.isEmpty())
        drawn.wait();
    // QQuickWindow::grabWindow() gives nothing on the offscreen platform with software rendering.
    return window.screen()->grabWindow(window.winId()).toImage();
}
