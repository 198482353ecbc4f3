#pragma once

#include "visuals/grid-plot.h"

#include <QString>

/// How the level of a band's strongest classified signal went over the last scans: a line over time, now at
/// the right edge, with the signal's frequency and class in words. Stronger levels lie lower, against the
/// labels, on purpose.
class FreqPlot : public GridPlot {
    Q_OBJECT
    Q_PROPERTY(QString lang READ getLang WRITE setLang)

public:
    static constexpr int MIN_LVL = -95; ///< dB; a signal is followed only above it

    using GridPlot::GridPlot;

    /// The language tag of the screens; "ru" takes the Russian unit.
    QString getLang() const { return lang; }
    void setLang(const QString &tag) { lang = tag; }

    void setHistory(History history) override;

protected:
    QRect layOut(const QSizeF &item) override;
    void paintLegend(QPainter &painter) override;
    void paintData(QPainter &painter) override;

private:
    void followStrongest(const Rows &levels, const std::vector<float> &freqs);

    /// Pixels for a level in dB, counted from the grid's top.
    int getY(float rssi) const;
    /// Pixels for the digits of a number; 0 has none.
    int getLabelWidth(std::int64_t value) const;

    void paintTimeAxis(QPainter &painter, std::int64_t spanMs) const;
    void paintCurve(QPainter &painter, std::int64_t spanMs) const;
    void paintCaption(QPainter &painter) const;

    QString lang;
    int freq = 0; ///< MHz
    SigTypeEnum sigType = SigTypeEnum::NONE;
    std::vector<History::_HistoryPoint> points; ///< newest first
    int itemHeight = 0;
};
