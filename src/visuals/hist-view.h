#pragma once

#include "visuals/grid-plot.h"

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
    QRect layOut(const QSize &item) override;
    Drawing legend() const override;
    Drawing data() const override;

private:
    Q_SIGNAL void freqsChanged();

    /// Looks at the number of columns, the first and the last one.
    bool hasColumns(const std::vector<float> &freqs) const;
    /// Pixels for 1 dB: the grid has a row for each from the weak end to the strong one.
    int rowHeight() const;

    std::vector<float> historyFreqs; ///< MHz
    Rows historyLevels;
    int historyLen = 0;
};
