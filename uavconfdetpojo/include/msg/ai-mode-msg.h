#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Turns the AI on or off for a frequency range.
///
/// - `freqMin`: in MHz
/// - `freqMax`: in MHz
#define FIELDS(FIELD)              \
    FIELD(bool, ai_mode, Ai_mode)  \
    FIELD(float, freqMin, FreqMin) \
    FIELD(float, freqMax, FreqMax)

MESSAGE(AiModeMsg, m_aiModeMsg, AI_MODE)

#include "macros-off.h"
