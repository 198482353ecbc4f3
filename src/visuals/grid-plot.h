#pragma once

#include "visuals/layered-plot.h"

#include <QPainter>
#include <QPen>
#include <QSize>
#include <cstdint>
#include <vector>

/// A view of the whole history of a band: a grid with a column of level labels to its left and a line of
/// labels below it.
class GridPlot : public LayeredPlot {
    Q_OBJECT
    Q_PROPERTY(QColor textColor READ getTextColor WRITE setTextColor NOTIFY sizeChanged)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)

public:
    static constexpr int PLOT_MIN_Y = -105; ///< dB
    static constexpr int PLOT_MAX_Y = -75;  ///< dB

    using LayeredPlot::LayeredPlot;

    QColor getTextColor() const { return textColor; }
    void setTextColor(const QColor &color);
    /// Colour of the grid.
    QColor getBorderColor() const { return borderColor; }
    void setBorderColor(const QColor &color) { borderColor = color; }

protected:
    using Rows = std::vector<std::vector<History::_HistoryPoint>>;

    /// The grid's place in an item of this size, below `topPad` pixels; stores its size and the label
    /// metrics.
    QRect layOutGrid(const QSizeF &item, int topPad);
    /// Height of the line of labels below the grid, in pixels.
    int labelsHeight() const { return 2 * textSize; }
    QPen linePen(const QColor &color) const { return QPen(color, lineWidth); }

    void drawRow(QPainter &painter, int y) const { painter.drawLine(0, y, grid.width(), y); }
    void drawColumn(QPainter &painter, int x) const { painter.drawLine(x, 0, x, grid.height()); }
    /// Draws a label with its top left corner at this place. Unlike a text in a rectangle it is neither
    /// wrapped nor cut where a font is wider than its average character.
    void drawNumber(QPainter &painter, int x, int top, std::int64_t number) const;

    /// The first of the steps 1, 5, 10, 50, 100 and so on with which the labels fit.
    template <typename Fits>
    static std::int64_t labelStep(Fits fits) {
        std::int64_t step = 1;
        for (bool toFive = true; !fits(step); toFive = !toFive)
            step *= toFive ? 5 : 2;
        return step;
    }

    QSize grid;
    int charW = 0;  ///< average width of a label's character, in pixels
    int ascent = 0; ///< of the labels' font, in pixels
    QColor textColor;
    QColor borderColor;
};
