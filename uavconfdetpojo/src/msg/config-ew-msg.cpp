#include "msg/config-ew-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ConfigEwMsg, CONFIG_EW_MSG_FIELDS)
