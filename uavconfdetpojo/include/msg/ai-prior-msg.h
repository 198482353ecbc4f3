#pragma once

#include "ai-prior.h"
#include "msg/msg.h"

#include "macros-on.h"

/// The AI mode.
#define FIELDS(FIELD) FIELD(AiPriorEnum, aiPrior, AiPrior)

MESSAGE(AiPriorMsg, m_aiPriorMsg, AI_PRIOR)

#include "macros-off.h"
