#include "msg/freq-range-atten-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(FreqRangeAttenMsg, FREQ_RANGE_ATTEN_MSG_FIELDS)
