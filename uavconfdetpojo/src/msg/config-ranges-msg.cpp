#include "msg/config-ranges-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ConfigRangesMsg, CONFIG_RANGES_MSG_FIELDS)
