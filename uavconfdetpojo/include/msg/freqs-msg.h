#pragma once

#include "freq-list.h"
#include "msg/msg.h"

#include <memory>

/// A frequency plan.
#define FREQS_MSG_FIELDS(FIELD) FIELD(std::shared_ptr<FreqList>, freqList, FreqList)

MESSAGE(FreqsMsg, m_freqsMsg, FREQS, FREQS_MSG_FIELDS)
