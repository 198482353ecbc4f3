#include "msg/ai-data-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(AiDataMsg, AI_DATA_MSG_FIELDS)
