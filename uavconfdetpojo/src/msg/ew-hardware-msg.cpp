#include "msg/ew-hardware-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(EwHardwareMsg, EW_HARDWARE_MSG_FIELDS)
