#pragma once

#include <QObject>

/// The frequency axis of one band, in MHz. No caller today.
class PlotData : public QObject {
    Q_OBJECT
    Q_PROPERTY(float minFreq READ getMinFreq WRITE setMinFreq NOTIFY changed)
    Q_PROPERTY(float maxFreq READ getMaxFreq WRITE setMaxFreq NOTIFY changed)
    Q_PROPERTY(float barWidth READ getBarWidth WRITE setBarWidth NOTIFY changed)
    Q_PROPERTY(bool hasData READ hasData)

public:
    explicit PlotData(QObject *parent = nullptr);
    PlotData(float minFreq, float maxFreq, float barWidth);

    float getMinFreq() const { return minFreq; }
    void setMinFreq(float value) { minFreq = value; }
    float getMaxFreq() const { return maxFreq; }
    void setMaxFreq(float value) { maxFreq = value; }
    float getBarWidth() const { return barWidth; }
    void setBarWidth(float value) { barWidth = value; }
    /// True if it was made with values.
    bool hasData() const { return m_hasData; }

signals:
    void changed();

private:
    float minFreq = 0;
    float maxFreq = 0;
    float barWidth = 0;
    bool m_hasData = false;
};
