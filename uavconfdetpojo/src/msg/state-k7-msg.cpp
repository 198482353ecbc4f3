#include "msg/state-k7-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(StateK7Msg, STATE_K7_MSG_FIELDS)
