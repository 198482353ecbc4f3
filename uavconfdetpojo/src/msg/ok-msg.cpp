#include "msg/ok-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(OkMsg, OK_MSG_FIELDS)
