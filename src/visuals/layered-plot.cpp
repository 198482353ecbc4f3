#include "visuals/layered-plot.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QtMath>
#include <utility>

namespace {

/// The whole pixels that an area touches. A tiny excess over a pixel is an error of rounding and does not
/// count.
QRect wholePixels(const QRectF &area) {
    constexpr double hair = 1e-6;
    return area.adjusted(hair, hair, -hair, -hair).toAlignedRect();
}

QRectF scaled(const QRectF &area, double factor) {
    return {area.topLeft() * factor, area.size() * factor};
}

} // namespace

LayeredPlot::LayeredPlot(QQuickItem *parent)
    : PaintedItem(parent) {
    connect(
        this, &LayeredPlot::historyChanged, this,
        [this] {
            if (isVisible())
                paintOnImage();
        });
    connect(this, &LayeredPlot::imageReady, this, [this] {
        if (isVisible())
            update();
    });
    connect(this, &LayeredPlot::sizeChanged, this, &LayeredPlot::rebuild);
    connect(this, &QQuickItem::visibleChanged, this, &LayeredPlot::showData);
}

void LayeredPlot::setLineWidth(int width) {
    if (width != 0)
        lineWidth = width;
}

void LayeredPlot::setTextSize(int size) {
    textSize = size;
    emit sizeChanged();
}

History LayeredPlot::getHistory() const {
    return History(masterMode, History::DEFAULT_HISTORY_LEN);
}

void LayeredPlot::paint(QPainter *painter) {
    painter->save();
    painter->scale(1 / pixelRatio, 1 / pixelRatio);
    // Copies the background only where it shows. A copy of the part under the data would cost much of a
    // scan's time.
    const QRect place = wholePixels(scaled(imageArea, pixelRatio));
    for (const QRect &strip : QRegion(background.rect()) - (image.isNull() ? QRect() : place))
        painter->drawPixmap(strip, background, strip);
    painter->drawPixmap(place, image);
    painter->restore();
}

QSGNode *LayeredPlot::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) {
    auto *node = static_cast<QSGImageNode *>(oldNode);
    if (background.isNull()) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Nearest);
    }
    QImage shown(background.size(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&shown);
    painter.setCompositionMode(QPainter::CompositionMode_Source); // the layers cover all of it
    painter.scale(pixelRatio, pixelRatio);
    paint(&painter);
    painter.end();
    node->setTexture(window()->createTextureFromImage(shown));
    node->setSourceRect(shown.rect());
    const QPointF place = mapToScene({0, 0}) * pixelRatio;
    const QPointF wholePlace = wholePixels({place, shown.size()}).topLeft();
    node->setRect(QRectF((wholePlace - place) / pixelRatio, QSizeF(shown.size()) / pixelRatio));
    return node;
}

void LayeredPlot::paintBackground() {
    const QSize size(static_cast<int>(boundingRect().width()), static_cast<int>(boundingRect().height()));
    const QFontMetrics metrics(fontOfSize(textSize));
    labelFont = {metrics.averageCharWidth(), metrics.ascent()};
    const QRect formerArea = std::exchange(imageArea, layOut(size));
    if (imageArea != formerArea)
        emit plotAreaChanged();
    paintLayer(background, QRect({0, 0}, size), imageArea.isEmpty() ? Drawing() : legend());
}

void LayeredPlot::paintOnImage() {
    paintLayer(image, imageArea, imageArea.isEmpty() ? Drawing() : data());
    emit imageReady();
}

void LayeredPlot::componentComplete() {
    PaintedItem::componentComplete();
    rebuild();
}

void LayeredPlot::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) {
    PaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        rebuild();
}

void LayeredPlot::itemChange(ItemChange change, const ItemChangeData &value) {
    PaintedItem::itemChange(change, value);
    const double formerRatio = pixelRatio;
    if (change == ItemSceneChange && value.window)
        pixelRatio = value.window->effectiveDevicePixelRatio();
    else if (change == ItemDevicePixelRatioHasChanged)
        pixelRatio = value.realValue;
    if (pixelRatio != formerRatio)
        rebuild();
}

void LayeredPlot::rebuild() {
    // The document is still setting the properties one by one. Painting now would be for nothing.
    if (!isComponentComplete())
        return;
    paintBackground();
    showData();
}

void LayeredPlot::showData() {
    // While the application object ends, rows whose window has gone count as visible again.
    if (!isVisible() || QCoreApplication::closingDown())
        return;
    paintOnImage();
    update();
}

void LayeredPlot::paintLayer(QPixmap &layer, const QRect &area, const Drawing &drawing) const {
    const QRectF inPixels = scaled(area, pixelRatio);
    const QRect pixels = area.isEmpty() ? QRect() : wholePixels(inPixels);
    if (layer.size() != pixels.size())
        layer = pixels.isEmpty() ? QPixmap() : QPixmap(pixels.size());
    if (layer.isNull())
        return;
    layer.fill(backgroundColor);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(inPixels.topLeft() - pixels.topLeft());
    painter.scale(pixelRatio, pixelRatio);
    paintDrawing(drawing, painter);
}
