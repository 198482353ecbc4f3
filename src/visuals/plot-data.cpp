#include "plot-data.h"

PlotData::PlotData(QObject *parent)
    : QObject(parent) {}

PlotData::PlotData(float min, float max, float width)
    : minFreq(min)
    , maxFreq(max)
    , barWidth(width)
    , m_hasData(true) {}
