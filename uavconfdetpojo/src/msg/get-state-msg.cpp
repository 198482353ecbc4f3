#include "msg/get-state-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetStateMsg, NO_FIELDS)
