#pragma once

#include "visuals/grid-plot.h"

#include <QColor>
#include <map>

/// The persistence picture of a band's last scans: frequency to the right, level downwards, one block for
/// each point of each scan in the colour of its signal class. The newest scan is opaque, older ones fade.
///
/// Blocks stand by column and grid lines by frequency, so a band's frequencies are to be evenly spaced.
class HistView : public GridPlot {
    Q_OBJECT

public:
    explicit HistView(QQuickItem *parent = nullptr);

    /// A history without rows leaves the former picture in place. Raises std::out_of_range for a band that
    /// there is not.
    void setHistory(History history) override;

protected:
    QRect layOut(const QSizeF &item) override;
    void paintLegend(QPainter &painter) override;
    void paintData(QPainter &painter) override;

private:
    Q_SIGNAL void freqsChanged();

    static constexpr int minLevelDb = -100;
    static constexpr int MIN_LABEL_DB = -95;

    /// Looks at the number of columns, the first and the last one.
    bool hasColumns(const std::vector<float> &freqs) const;
    void updateColors();
    int levelY(int level) const { return dH * (level - minLevelDb); }
    void measureFreqs();
    /// Calls draw(f, x) for each labelled frequency in MHz, with its pixels from the left end of the grid.
    template <typename Draw>
    void eachLabelledFreq(Draw draw) const;
    void paintBlocks(QPainter &painter) const;

    std::vector<float> historyFreqs; ///< MHz
    Rows historyLevels;
    std::map<SigTypeEnum, std::vector<QColor>> paints; ///< for each class one colour per age, oldest first
    int historyLen = 0;
    int dH = 0;         ///< pixels for 1 dB
    float rangeMHz = 0; ///< from the first to the last column; labels need more than 0
    int div = 1;        ///< MHz between two labels
    float dXByFreq = 0; ///< pixels for 1 MHz
};
