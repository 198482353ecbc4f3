#pragma once

#include <QCoreApplication>
#include <QQuickPaintedItem>

// The one place that tells Qt 5.15 from Qt 6: what both have under different names has one name here.

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

/// Passes on each change of the item's place or size, under Qt 6's name.
class PaintedItem : public QQuickPaintedItem {
public:
    using QQuickPaintedItem::QQuickPaintedItem;

protected:
    virtual void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) {
        QQuickPaintedItem::geometryChanged(newGeometry, oldGeometry);
    }

private:
    void geometryChanged(const QRectF &newGeometry, const QRectF &oldGeometry) final {
        geometryChange(newGeometry, oldGeometry);
    }
};

/// Makes Qt scale windows by the desktop's factor. Call it before the application object is made.
inline void enableHighDpiScaling() {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
}

/// Makes good that the end of an earlier application object took away what shows items to screen readers.
inline void showItemsToScreenReaders() {} // the engine does

#else

/// Qt Quick runs this when it is loaded. It has no header for it.
void QQuick_initializeModule();

using PaintedItem = QQuickPaintedItem;

inline void enableHighDpiScaling() {} // always on

inline void showItemsToScreenReaders() {
    QQuick_initializeModule();
}

#endif
