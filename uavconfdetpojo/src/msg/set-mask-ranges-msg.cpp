#include "msg/set-mask-ranges-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(SetMaskRangesMsg, SET_MASK_RANGES_MSG_FIELDS)
