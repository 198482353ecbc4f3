#pragma once

#include "visuals/layered-plot.h"
#include "visuals/level-axis.h"
#include "visuals/ticks.h"

#include <QSize>
#include <vector>

/// A view of the whole history of a band: a grid with a column of level labels to its left and a line of
/// labels below it.
class GridPlot : public LayeredPlot {
    Q_OBJECT
    Q_PROPERTY(QColor textColor READ getTextColor WRITE setTextColor NOTIFY sizeChanged)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)

public:
    static constexpr int PLOT_MIN_Y = LevelAxis::PLOT_MIN_Y; ///< dB. No caller today.
    static constexpr int PLOT_MAX_Y = LevelAxis::PLOT_MAX_Y; ///< dB. No caller today.

    using LayeredPlot::LayeredPlot;

    QColor getTextColor() const { return textColor; }
    virtual void setTextColor(const QColor &color) { textColor = color; }
    /// Colour of the grid.
    QColor getBorderColor() const { return borderColor; }
    void setBorderColor(const QColor &color) { borderColor = color; }

protected:
    using Rows = std::vector<std::vector<History::_HistoryPoint>>;

    /// The rectangle of the grid in an item of this size, `topPad` pixels from the top. Also stores the
    /// grid's size.
    QRect layOutGrid(const QSize &item, int topPad);
    /// Width of the column of level labels, in pixels.
    int leftPad() const { return 4 * labelFont.charW; }
    /// Height of the line of labels below the grid, in pixels.
    int labelsHeight() const { return 2 * textSize; }

    DrawnLine row(int y) const { return {QLine(0, y, grid.width(), y), borderColor, lineWidth}; }
    DrawnLine column(int x) const { return {QLine(x, 0, x, grid.height()), borderColor, lineWidth}; }
    Words levelLabel(int x, int baseLine, int levelDb) const {
        return LayeredPlot::levelLabel(x, baseLine, levelDb, textColor, leftPad());
    }
    /// A number with its top left corner at this place. It is never wrapped or cut, unlike a text in a
    /// rectangle.
    Words number(int x, int top, std::int64_t number) const;

    QSize grid;
    QColor textColor;
    QColor borderColor;
};
