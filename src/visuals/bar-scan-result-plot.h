#pragma once

#include "freq-scan-result.h"
#include "visuals/layered-plot.h"

#include <array>
#include <memory>
#include <vector>

/// The newest scan of a band: one bar for each frequency, height by level, colour by signal class, with three
/// dashed threshold lines. Axes: MHz to the right, dB upwards.
class BarScanResultPlot : public LayeredPlot {
    Q_OBJECT
    Q_PROPERTY(QColor innerBorderColor READ getInnerBorderColor WRITE setInnerBorderColor)

public:
    static constexpr float PLOT_MIN_Y = -105.0f; ///< dB
    static constexpr float PLOT_MAX_Y = -75.0f;  ///< dB
    static constexpr int PLOT_LEVELS_COUNT = 3;
    /// Threshold levels in dB and their colours.
    static constexpr std::array<float, PLOT_LEVELS_COUNT> PLOT_LEVELS{-100.0f, -94.0f, -88.0f};
    static constexpr std::array<QRgb, PLOT_LEVELS_COUNT> PLOT_COLORS{0xc000ff00, 0xc0ffff00, 0xc0ff0000};
    static constexpr float PLOT_X_DELTA_MHZ = 200.0f; ///< spacing of the frequency labels

    explicit BarScanResultPlot(QQuickItem *parent = nullptr);

    /// Colour of the grid and of the base line.
    QColor getInnerBorderColor() const { return innerBorderColor; }
    void setInnerBorderColor(const QColor &color) { innerBorderColor = color; }

    /// Raises std::out_of_range for a band with fewer than two frequencies.
    void setHistory(History history) override;

protected:
    QRect layOut(const QSizeF &item) override;
    void paintLegend(QPainter &painter) override;
    void paintData(QPainter &painter) override;

private:
    Q_SIGNAL void masterModeChanged();

    /// Pixels from the left edge of the plot area, for a frequency in MHz.
    int scaleX(float freq) const;
    /// Pixels for a level in dB: the height of its bar. Outside the axis the result is reversed on purpose: 0
    /// above it, the full height below it.
    int scaleY(int level) const;

    void paintInnerBorders(QPainter &painter) const;
    void paintPlot(QPainter &painter) const;
    void paintBorders(QPainter &painter) const;

    std::vector<std::shared_ptr<FreqScanResult>> freqScanResults;
    float minFreq = 0;  ///< MHz
    float maxFreq = 0;  ///< MHz
    float barWidth = 0; ///< MHz
    QColor innerBorderColor;
    int itemHeight = 0;
    int plotWidth = 0;
    int plotHeight = 0;
    int xStep = 0;
    int yStep = 0;
    std::vector<float> xLabels; ///< MHz, the vertical grid lines
    std::vector<int> yLabels;   ///< dB, the horizontal grid lines
};
