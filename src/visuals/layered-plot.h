#pragma once

#include "common/history-metatype.h"
#include "common/qt-versions.h"
#include "visuals/drawing.h"

#include <QPixmap>

/// A view of one band's history. It has two layers, which are painted before paint() is called. `background`
/// covers the whole item and has the labels; it is rebuilt when the item's size or its band changes. `image`
/// covers the plot area and has the data; it is rebuilt on each update while the item is visible. A hidden
/// view only stores its data and rebuilds `image` when it is shown.
///
/// Places are calculated in logical pixels. The layers have the screen's own pixels; they are rebuilt when
/// the item comes to a screen of another scale.
///
/// All of it runs on the UI thread. The scene graph sees only what paint() copies.
class LayeredPlot : public PaintedItem {
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(int lineWidth READ getLineWidth WRITE setLineWidth)
    Q_PROPERTY(int textSize READ getTextSize WRITE setTextSize NOTIFY sizeChanged)
    Q_PROPERTY(QRectF plotArea READ getPlotArea NOTIFY plotAreaChanged)
    Q_PROPERTY(History history READ getHistory WRITE setHistory NOTIFY historyChanged)

public:
    explicit LayeredPlot(QQuickItem *parent = nullptr);

    QColor getBackgroundColor() const { return backgroundColor; }
    void setBackgroundColor(const QColor &color) { backgroundColor = color; }

    /// Width of grid lines and curves, in pixels.
    int getLineWidth() const { return lineWidth; }
    /// On purpose: ignores 0 and keeps the former width. A width that is calculated from a small font may be
    /// 0.
    void setLineWidth(int width);

    /// Size of the labels, in points.
    int getTextSize() const { return textSize; }
    void setTextSize(int size);

    /// On purpose: returns an empty history of the band, not the one that was set. Nobody reads it.
    History getHistory() const;
    Q_INVOKABLE virtual void setHistory(History history) = 0;

    /// The area of the data in the item, without the labels, in logical pixels.
    virtual QRectF getPlotArea() const { return imageArea; }

    void paint(QPainter *painter) override;

signals:
    void historyChanged();
    /// The labels no longer fit the item. Rebuilds both layers.
    void sizeChanged();
    void plotAreaChanged();

protected:
    static constexpr MasterFreqModeEnum NO_BAND = static_cast<MasterFreqModeEnum>(-1);

    /// The measures of the labels' font, in pixels.
    struct LabelFont {
        int charW;  ///< average width of a character
        int ascent; ///< from the base line up
    };

    /// The rectangle of `image` in an item of this size, in pixels. If it is empty, legend() and data() are
    /// not called, so they always have an area with width and height.
    virtual QRect layOut(const QSize &item) = 0;
    /// The labels. Places are from the corner of the item.
    virtual Drawing legend() const = 0;
    /// The data. Places are from the corner of the plot area.
    virtual Drawing data() const = 0;

    void paintBackground();
    void paintOnImage();
    Words words(int x, int baseLine, const QString &text, const QColor &color) const {
        return {QPoint(x, baseLine), text, color, textSize};
    }
    /// The label of a level. It is squeezed if it would reach under the picture, as with a font of wide
    /// digits. The picture begins at `pictureX`, in pixels from the left.
    Words levelLabel(int x, int baseLine, int levelDb, const QColor &color, int pictureX) const {
        return {QPoint(x, baseLine), QString::number(levelDb), color, textSize, pictureX - x};
    }

    /// Does the same as QQuickPaintedItem, but on whole pixels of the screen. At a scale such as 1.25 the
    /// item may begin or end inside a pixel. A picture in exactly that size would be blurred.
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

    MasterFreqModeEnum masterMode = NO_BAND;
    QColor backgroundColor;
    int lineWidth = 2;
    int textSize = 10;
    LabelFont labelFont{0, 0}; ///< known before layOut() is called

private:
    Q_SIGNAL void imageReady();

    void rebuild();
    void showData();
    /// Paints a drawing into a layer for an area of the item, in logical pixels.
    void paintLayer(QPixmap &layer, const QRect &area, const Drawing &drawing) const;

    double pixelRatio = 1; ///< pixels of the screen for one logical pixel
    QRect imageArea;       ///< in logical pixels
    QPixmap image;
    QPixmap background;
};
