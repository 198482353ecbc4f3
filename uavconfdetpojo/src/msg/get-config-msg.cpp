#include "msg/get-config-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetConfigMsg, NO_FIELDS)
