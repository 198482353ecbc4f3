#pragma once

#include "msg/msg.h"
#include "sig-type.h"

#include <vector>

#include "macros-on.h"

/// The AI's result for the data at one frequency.
///
/// - `freqMHz`: in MHz
/// - `cnt`: a count that the device sends; it may differ from the length of `data`
#define FIELDS(FIELD)                  \
    FIELD(float, freqMHz, FreqMHz)     \
    FIELD(SigTypeEnum, ai_res, Ai_res) \
    FIELD(int, cnt, Cnt)               \
    FIELD(std::vector<int>, data, Data)

MESSAGE(AiDataMsg, m_aiDataMsg, AI_DATA)

#include "macros-off.h"
