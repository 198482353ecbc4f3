#pragma once

#include "visuals/grid-plot.h"

/// The persistence display of a band's last scans. Frequencies go to the right, levels downwards. Each point
/// of each scan is a block in the colour of its signal class. The newest scan is opaque, older ones are more
/// and more transparent.
///
/// On purpose: blocks are placed by column, grid lines by frequency. The frequencies of a band have equal
/// distances.
class HistView : public GridPlot {
    Q_OBJECT

public:
    static constexpr int minLevelDb = LevelAxis::minLevelDb; ///< dB. No caller today.

    explicit HistView(QQuickItem *parent = nullptr);

    /// Throws std::out_of_range for a number that is no band. On purpose: with a history without rows the
    /// former picture stays until the next scan.
    void setHistory(History history) override;

protected:
    QRect layOut(const QSize &item) override;
    Drawing legend() const override;
    Drawing data() const override;

private:
    Q_SIGNAL void freqsChanged();

    /// On purpose: compares only the number of columns, the first and the last one. The axis needs no more.
    bool hasColumns(const std::vector<float> &freqs) const;
    /// Pixels for 1 dB. The grid has a row for each dB of the axis.
    int rowHeight() const;

    std::vector<float> historyFreqs; ///< MHz
    Rows historyLevels;
    int historyLen = 0;
};
