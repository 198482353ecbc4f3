#pragma once

#include <QCoreApplication>
#include <QQuickPaintedItem>

// The one place that tells Qt 5.15 from Qt 6: what both have under different names has one name here.

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

/// Hands on each change of the item's place or size by the name of Qt 6.
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

/// Has Qt scale windows by the desktop's factor. Before the application object.
inline void enableHighDpiScaling() {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
}

#else

using PaintedItem = QQuickPaintedItem;

inline void enableHighDpiScaling() {} // always on

#endif
