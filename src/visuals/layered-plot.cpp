#include "visuals/layered-plot.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>

LayeredPlot::LayeredPlot(QQuickItem *parent)
    : QQuickPaintedItem(parent) {
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
    // The background only where it shows: copying it under the data would be a good part of a scan's cost.
    const QRect covered = image.isNull() ? QRect() : imageArea;
    for (const QRect &strip : QRegion(background.rect()) - covered)
        painter->drawPixmap(strip, background, strip);
    painter->drawPixmap(imageArea, image);
}

void LayeredPlot::paintBackground() {
    const QSize size(static_cast<int>(boundingRect().width()), static_cast<int>(boundingRect().height()));
    const QFontMetrics metrics(fontOfSize(textSize));
    labelFont = {metrics.averageCharWidth(), metrics.ascent()};
    imageArea = layOut(size);
    paintLayer(background, size, imageArea.isEmpty() ? Drawing() : legend());
}

void LayeredPlot::paintOnImage() {
    paintLayer(image, imageArea.size(), imageArea.isEmpty() ? Drawing() : data());
    emit imageReady();
}

void LayeredPlot::componentComplete() {
    QQuickPaintedItem::componentComplete();
    rebuild();
}

void LayeredPlot::geometryChanged(const QRectF &newGeometry, const QRectF &oldGeometry) {
    QQuickPaintedItem::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        rebuild();
}

void LayeredPlot::rebuild() {
    // While a document still sets the properties one by one, each layer would be painted for nothing.
    if (!isComponentComplete())
        return;
    paintBackground();
    showData();
}

void LayeredPlot::showData() {
    // Rows that outlive the window count as visible once more while the application object ends.
    if (!isVisible() || QCoreApplication::closingDown())
        return;
    paintOnImage();
    update();
}

void LayeredPlot::paintLayer(QPixmap &layer, const QSize &size, const Drawing &drawing) const {
    if (layer.size() != size)
        layer = size.isEmpty() ? QPixmap() : QPixmap(size);
    if (layer.isNull())
        return;
    layer.fill(backgroundColor);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    paintDrawing(drawing, painter);
}
