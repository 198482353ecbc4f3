#include "msg/get-config-ranges-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetConfigRangesMsg, NO_FIELDS)
