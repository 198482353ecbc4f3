#include "msg/get-config-freq-calib-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetConfigFreqCalibMsg, NO_FIELDS)
