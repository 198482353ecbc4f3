#pragma once

#include "common/history-metatype.h"
#include "common/qt-versions.h"
#include "visuals/drawing.h"

#include <QPixmap>

/// A view of one band's history, painted in two layers that are prepared outside paint(): `background` covers
/// the whole item with the labels and is rebuilt when the item's size or its band changes; `image` covers the
/// plot area with the data and is rebuilt on each update while the item is visible. A hidden plot only takes
/// data and catches up when it is shown.
///
/// What stands where is worked out in logical pixels; the layers have the screen's own ones, and are made
/// anew when the item comes to a screen of another scale.
///
/// All of it runs on the GUI thread; the scene graph sees only what paint() copies.
class LayeredPlot : public PaintedItem {
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(int lineWidth READ getLineWidth WRITE setLineWidth)
    Q_PROPERTY(int textSize READ getTextSize WRITE setTextSize NOTIFY sizeChanged)
    Q_PROPERTY(History history READ getHistory WRITE setHistory NOTIFY historyChanged)

public:
    explicit LayeredPlot(QQuickItem *parent = nullptr);

    QColor getBackgroundColor() const { return backgroundColor; }
    void setBackgroundColor(const QColor &color) { backgroundColor = color; }

    /// Width of grid lines and curves, in pixels.
    int getLineWidth() const { return lineWidth; }
    /// On purpose: ignores 0. A width computed from a small font keeps the former one.
    void setLineWidth(int width);

    /// Size of the labels, in points.
    int getTextSize() const { return textSize; }
    void setTextSize(int size);

    /// On purpose: an empty history of the band on show. What was set is not given back, as nobody reads it.
    History getHistory() const;
    Q_INVOKABLE virtual void setHistory(History history) = 0;

    void paint(QPainter *painter) override;

signals:
    void historyChanged();
    /// The labels no longer fit the item: rebuilds both layers.
    void sizeChanged();

protected:
    static constexpr MasterFreqModeEnum NO_BAND = static_cast<MasterFreqModeEnum>(-1);

    /// The labels' font, in pixels.
    struct LabelFont {
        int charW;  ///< average width of a character
        int ascent; ///< from the base line up
    };

    /// Works out the place of `image` in an item of this size, in pixels. The place may be empty: then
    /// neither labels nor data are asked for, so they need not mind an area without width or height.
    virtual QRect layOut(const QSize &item) = 0;
    /// The labels, in the item.
    virtual Drawing legend() const = 0;
    /// The data, in the plot area.
    virtual Drawing data() const = 0;

    void paintBackground();
    void paintOnImage();
    Words words(int x, int baseLine, const QString &text, const QColor &color) const {
        return {QPoint(x, baseLine), text, color, textSize};
    }

    /// What QQuickPaintedItem does, but on the screen's whole pixels: where the item begins or ends within
    /// one, at a scale of 1.25 for example, a picture that is fitted into its very size would be blurred.
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
    /// Paints what an area of the item, in logical pixels, shows.
    void paintLayer(QPixmap &layer, const QRect &area, const Drawing &drawing) const;

    double pixelRatio = 1; ///< of the screen: its pixels for one logical pixel
    QRect imageArea;       ///< in logical pixels
    QPixmap image;
    QPixmap background;
};
