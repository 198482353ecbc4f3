#include "msg/ai-prior-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(AiPriorMsg, AI_PRIOR_MSG_FIELDS)
