#include "msg/get-ew-hardware-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetEwHardwareMsg, NO_FIELDS)
