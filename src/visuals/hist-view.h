#pragma once

#include "visuals/grid-plot.h"

/// The persistence picture of a band's last scans: frequency to the right, level downwards, one block for
/// each point of each scan in the colour of its signal class. The newest scan is opaque, older ones fade.
///
/// On purpose: blocks stand by column and grid lines by frequency. A band's frequencies are evenly spaced.
class HistView : public GridPlot {
    Q_OBJECT

public:
    static constexpr int minLevelDb = LevelAxis::minLevelDb; ///< dB. No caller today.

    explicit HistView(QQuickItem *parent = nullptr);

    /// Throws std::out_of_range for what is no band.
    /// On purpose: a history without rows leaves the former picture in place, until the next scan.
    void setHistory(History history) override;

protected:
    QRect layOut(const QSize &item) override;
    Drawing legend() const override;
    Drawing data() const override;

private:
    Q_SIGNAL void freqsChanged();

    /// On purpose: looks at the number of columns, the first and the last one alone. The axis needs no more.
    bool hasColumns(const std::vector<float> &freqs) const;
    /// Pixels for 1 dB: the grid has a row for each from the weak end to the strong one.
    int rowHeight() const;

    std::vector<float> historyFreqs; ///< MHz
    Rows historyLevels;
    int historyLen = 0;
};
