#pragma once

#include "fields.h"

/// The settings of one band.
///
/// - `refLvl`: reference level
#define FREQ_MODE_SETTING_FIELDS(FIELD) FIELD(int, refLvl, RefLvl)

NESTED_VALUE(FreqModeSetting, m_freqModeSetting, FREQ_MODE_SETTING_FIELDS)
