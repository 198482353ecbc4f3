#pragma once

#include "ew-activate.h"
#include "fields.h"
#include "param-values.h"
#include "sig-type.h"

#include "macros-on.h"

/// An EW target: what must be detected, and the EW output that it drives.
///
/// - `freqMin`: in MHz
/// - `freqMax`: in MHz
/// - `timeSecOfDetect`: seconds of detection
/// - `lvlOver`: level in dB to exceed
/// - `ewOutId`: id of the output
#define FIELDS(FIELD)                            \
    FIELD(float, freqMin, FreqMin)               \
    FIELD(float, freqMax, FreqMax)               \
    FIELD(SigTypeEnum, sigType, SigType)         \
    FIELD(int, timeSecOfDetect, TimeSecOfDetect) \
    FIELD(int, lvlOver, LvlOver)                 \
    FIELD(int, prior, Prior)                     \
    FIELD(EwActivateEnum, actType, ActType)      \
    FIELD(int, timeout, Timeout)                 \
    FIELD(int, ewOutId, EwOutId)                 \
    FIELD(ParamValues, ewOutConf, EwOutConf)

NESTED_VALUE(EwTarget, m_ewTarget)

#include "macros-off.h"
