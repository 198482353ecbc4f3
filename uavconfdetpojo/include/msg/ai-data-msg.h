#pragma once

#include "msg/msg.h"
#include "sig-type.h"

#include <vector>

#include "macros-on.h"

/// What the AI made of the data at one frequency.
///
/// - `freqMHz`: in MHz
/// - `cnt`: a count of the device; need not be the length of `data`
#define FIELDS(FIELD)                  \
    FIELD(float, freqMHz, FreqMHz)     \
    FIELD(SigTypeEnum, ai_res, Ai_res) \
    FIELD(int, cnt, Cnt)               \
    FIELD(std::vector<int>, data, Data)

MESSAGE(AiDataMsg, m_aiDataMsg, AI_DATA)

#include "macros-off.h"
