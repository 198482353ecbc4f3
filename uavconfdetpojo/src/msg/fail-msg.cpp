#include "msg/fail-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(FailMsg, FAIL_MSG_FIELDS)
