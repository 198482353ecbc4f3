#pragma once

#include "sig-type.h"

#include <QColor>

/// The colour of each signal class, the same in all plots.
class SigTypeColors {
public:
    /// Transparent for a value that is no signal class.
    static QColor getColor(SigTypeEnum type);
};
