#include "msg/get-freq-range-atten-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetFreqRangeAttenMsg, NO_FIELDS)
