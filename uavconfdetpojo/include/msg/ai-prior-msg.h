#pragma once

#include "ai-prior.h"
#include "msg/msg.h"

/// The AI mode.
#define AI_PRIOR_MSG_FIELDS(FIELD) FIELD(AiPriorEnum, aiPrior, AiPrior)

MESSAGE(AiPriorMsg, m_aiPriorMsg, AI_PRIOR, AI_PRIOR_MSG_FIELDS)
