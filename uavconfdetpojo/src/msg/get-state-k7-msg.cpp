#include "msg/get-state-k7-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetStateK7Msg, NO_FIELDS)
