#include "visuals/layered-plot.h"

#include <QGuiApplication>
#include <QPainter>

LayeredPlot::LayeredPlot(QQuickItem *parent)
    : QQuickPaintedItem(parent) {
    connect(this, &LayeredPlot::historyChanged, this, [this] {
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
    painter->drawPixmap(0, 0, background);
    painter->drawPixmap(imageArea, image);
}

void LayeredPlot::paintBackground() {
    const QSize size(static_cast<int>(boundingRect().width()), static_cast<int>(boundingRect().height()));
    imageArea = layOut(size);
    background = makeLayer(size, [this](QPainter &painter) {
        if (!imageArea.isEmpty())
            paintLegend(painter);
    });
}

void LayeredPlot::paintOnImage() {
    image = makeLayer(imageArea.size(), [this](QPainter &painter) { paintData(painter); });
    emit imageReady();
}

QFont LayeredPlot::labelFont() const {
    QFont font = QGuiApplication::font();
    font.setPointSize(qMax(textSize, 1));
    return font;
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

template <typename PaintContent>
QPixmap LayeredPlot::makeLayer(const QSize &size, PaintContent paintContent) const {
    if (size.isEmpty())
        return QPixmap();
    QPixmap layer(size);
    layer.fill(backgroundColor);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(labelFont());
    paintContent(painter);
    return layer;
}
