#include "msg/switch-ew-output-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(SwitchEwOutputMsg, SWITCH_EW_OUTPUT_MSG_FIELDS)
