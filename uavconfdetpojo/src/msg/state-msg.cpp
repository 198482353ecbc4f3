#include "msg/state-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(StateMsg, STATE_MSG_FIELDS)
