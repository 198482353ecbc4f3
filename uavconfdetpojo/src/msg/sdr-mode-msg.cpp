#include "msg/sdr-mode-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(SdrModeMsg, SDR_MODE_MSG_FIELDS)
