#pragma once

#include "screen-fixture.h"

/// The window with what is needed to look at and use its drawers.
class DrawerFixture : public ScreenFixture {
protected:
    /// The first visible item of an element, in another item if there is one; null if there is none.
    QQuickItem *first(const QString &element, const QQuickItem *in = nullptr) const {
        return driver->find([&](const QQuickItem &item) {
            return ScreenDriver::isA(item, element) && (!in || in->isAncestorOf(&item));
        });
    }

    /// Everything written in the open drawer or the open dialog, in its order, each followed by '|'.
    std::string words(const QString &element = "DrawerFrame") const {
        std::string texts;
        const QQuickItem *frame = first(element);
        driver->findAll([&](const QQuickItem &item) {
            const QString text = item.inherits("QQuickText") ? item.property("text").toString() : QString();
            if (frame && frame->isAncestorOf(&item) && !text.isEmpty())
                texts += text.toStdString() + "|";
            return false;
        });
        return texts;
    }

    bool isInView(const QString &word) const {
        const QQuickItem &frame = *first("DrawerFrame"), &item = *driver->control(word);
        return frame.contains(item.mapToItem(&frame, {0, 0})) &&
               frame.contains(item.mapToItem(&frame, {item.width(), item.height()}));
    }

    void resize(int width, int height) {
        window->resize(width, height);
        driver->picture(); // drawn, so everything has its place
    }

    /// The entry of the open dialog with this word on it.
    QQuickItem *entry(const QString &word) const {
        const QQuickItem *dialog = first("ListButtonDialog");
        return driver->find([&](const QQuickItem &item) {
            return dialog && dialog->isAncestorOf(&item) && item.property("text") == word;
        });
    }
    void choose(const QString &word) {
        ASSERT_NE(entry(word), nullptr) << qPrintable(word);
        driver->click(*entry(word));
        ASSERT_TRUE(ScreenDriver::waitFor([this] { return !first("ListButtonDialog"); }));
    }
};
