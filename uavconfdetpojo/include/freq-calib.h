#pragma once

#include "fields.h"

#include <vector>

#include "macros-on.h"

/// The frequency calibration of one band. Nothing checks that the lists have the same length.
///
/// - `freqsMHz`: calibration frequencies in MHz
/// - `fLvls`: level at each of them, index by index
#define FIELDS(FIELD)                             \
    FIELD(std::vector<float>, freqsMHz, FreqsMHz) \
    FIELD(std::vector<int>, fLvls, FLvls)

NESTED_VALUE(FreqCalib, m_freqCalib)

#include "macros-off.h"
