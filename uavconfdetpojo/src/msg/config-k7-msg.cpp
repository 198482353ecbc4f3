#include "msg/config-k7-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ConfigK7Msg, CONFIG_K7_MSG_FIELDS)
