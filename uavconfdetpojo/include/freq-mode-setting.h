#pragma once

#include "fields.h"

#include "macros-on.h"

/// The settings of one band.
///
/// - `refLvl`: reference level
#define FIELDS(FIELD) FIELD(int, refLvl, RefLvl)

NESTED_VALUE(FreqModeSetting, m_freqModeSetting)

#include "macros-off.h"
