#include "msg/firm/end-flashing-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(EndFlashingMsg, NO_FIELDS)
