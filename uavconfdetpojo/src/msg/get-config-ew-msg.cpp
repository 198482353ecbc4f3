#include "msg/get-config-ew-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetConfigEwMsg, NO_FIELDS)
