#pragma once

#include "freq-list.h"
#include "msg/msg.h"

#include <memory>

#include "macros-on.h"

/// A frequency plan.
#define FIELDS(FIELD) FIELD(std::shared_ptr<FreqList>, freqList, FreqList)

MESSAGE(FreqsMsg, m_freqsMsg, FREQS)

#include "macros-off.h"
