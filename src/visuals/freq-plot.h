#pragma once

#include "visuals/grid-plot.h"
#include "visuals/signal-course.h"

/// How the level of a band's strongest classified signal went over the last scans: a line over time, now at
/// the right edge, with the signal's frequency and class in words.
class FreqPlot : public GridPlot {
    Q_OBJECT
    Q_PROPERTY(QString lang READ getLang WRITE setLang)

public:
    static constexpr int MIN_LVL = SignalCourse::MIN_LVL; ///< dB. No caller today.

    using GridPlot::GridPlot;

    /// The language tag of the screens; "ru" takes the Russian unit.
    QString getLang() const { return lang; }
    void setLang(const QString &tag) { lang = tag; }

    /// Shows at once.
    void setTextColor(const QColor &color) override;

    void setHistory(History history) override;

protected:
    QRect layOut(const QSize &item) override;
    Drawing legend() const override;
    Drawing data() const override;

private:
    Words caption() const;

    QString lang;
    SignalCourse course;
};
