#include "msg/mask-result-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(MaskResultMsg, MASK_RESULT_MSG_FIELDS)
