#include "msg/get-ai-prior-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetAiPriorMsg, NO_FIELDS)
