#include "msg/ai-mode-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(AiModeMsg, AI_MODE_MSG_FIELDS)
