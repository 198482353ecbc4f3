#include "msg/config-freq-calib-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ConfigFreqCalibMsg, CONFIG_FREQ_CALIB_MSG_FIELDS)
