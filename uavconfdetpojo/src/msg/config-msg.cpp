#include "msg/config-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ConfigMsg, CONFIG_MSG_FIELDS)
