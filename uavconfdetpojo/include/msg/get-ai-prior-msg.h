#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for AI_PRIOR.
#define FIELDS(FIELD)
MESSAGE(GetAiPriorMsg, m_getAiPriorMsg, GET_AI_PRIOR)

#include "macros-off.h"
