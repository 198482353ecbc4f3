#pragma once

#include "visuals/freq-axis.h"
#include "visuals/layered-plot.h"
#include "visuals/level-axis.h"

#include <array>
#include <set>

/// The newest scan of a band: one bar for each frequency, height by level, colour by signal class, with three
/// dashed threshold lines. Axes: MHz to the right, dB upwards.
class BarScanResultPlot : public LayeredPlot {
    Q_OBJECT
    Q_PROPERTY(QColor innerBorderColor READ getInnerBorderColor WRITE setInnerBorderColor)

public:
    static constexpr float MIN_DATA_LEVEL = LevelAxis::PLOT_MIN_Y;        ///< dB. No caller today.
    static constexpr float PLOT_MIN_Y = LevelAxis::PLOT_MIN_Y;            ///< dB. No caller today.
    static constexpr float PLOT_MAX_Y = LevelAxis::PLOT_MAX_Y;            ///< dB. No caller today.
    static constexpr float PLOT_X_DELTA_MHZ = BandAxis::PLOT_X_DELTA_MHZ; ///< No caller today.
    static constexpr int PLOT_LEVELS_COUNT = 3;
    /// Threshold levels in dB and their colours.
    static constexpr std::array<float, PLOT_LEVELS_COUNT> PLOT_LEVELS{-100, -94, -88};
    static constexpr std::array<QRgb, PLOT_LEVELS_COUNT> PLOT_COLORS{0xc000ff00, 0xc0ffff00, 0xc0ff0000};

    explicit BarScanResultPlot(QQuickItem *parent = nullptr);

    /// Colour of the grid and of the base line.
    QColor getInnerBorderColor() const { return innerBorderColor; }
    void setInnerBorderColor(const QColor &color) { innerBorderColor = color; }

    /// Throws std::out_of_range for a band with fewer than two frequencies.
    void setHistory(History history) override;

protected:
    QRect layOut(const QSize &item) override;
    Drawing legend() const override;
    Drawing data() const override;

private:
    Q_SIGNAL void masterModeChanged();

    BandAxis axis;
    /// The vertical grid lines, in MHz. On purpose: the lines of a former band stay. A view is made for one
    /// band, and lines of another band are drawn at the edges.
    std::set<int> xLabels;
    History::Scan freqScanResults;
    QColor innerBorderColor;
    QRect plot; ///< the plot area in the item
};
