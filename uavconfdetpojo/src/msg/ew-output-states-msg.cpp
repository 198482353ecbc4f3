#include "msg/ew-output-states-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(EwOutputStatesMsg, EW_OUTPUT_STATES_MSG_FIELDS)
