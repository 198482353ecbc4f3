#pragma once

#include "visuals/grid-plot.h"
#include "visuals/signal-course.h"

/// The signal level over time: the level of a band's strongest signal with a class, over the last scans. It
/// is a curve whose newest point is at the right edge, with the signal's frequency and class in words.
class FreqPlot : public GridPlot {
    Q_OBJECT
    Q_PROPERTY(QString lang READ getLang WRITE setLang)

public:
    static constexpr int MIN_LVL = SignalCourse::MIN_LVL; ///< dB. No caller today.

    using GridPlot::GridPlot;

    /// The language tag of the screens; with "ru" the unit is in Russian.
    QString getLang() const { return lang; }
    void setLang(const QString &tag) { lang = tag; }

    /// Shows at once.
    void setTextColor(const QColor &color) override;

    void setHistory(History history) override;

    QRectF getPlotArea() const override {
        return LayeredPlot::getPlotArea().adjusted(0, 0, 0, -labelsHeight());
    }

protected:
    QRect layOut(const QSize &item) override;
    Drawing legend() const override;
    Drawing data() const override;

private:
    Words caption() const;

    QString lang;
    SignalCourse course;
};
