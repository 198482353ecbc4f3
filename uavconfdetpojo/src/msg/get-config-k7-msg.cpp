#include "msg/get-config-k7-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetConfigK7Msg, NO_FIELDS)
