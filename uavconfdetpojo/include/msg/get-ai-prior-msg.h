#pragma once

#include "msg/msg.h"

/// Asks for AI_PRIOR.
MESSAGE(GetAiPriorMsg, m_getAiPriorMsg, GET_AI_PRIOR, NO_FIELDS)
