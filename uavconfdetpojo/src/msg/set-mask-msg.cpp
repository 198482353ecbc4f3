#include "msg/set-mask-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(SetMaskMsg, NO_FIELDS)
