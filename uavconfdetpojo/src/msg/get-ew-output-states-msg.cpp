#include "msg/get-ew-output-states-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetEwOutputStatesMsg, NO_FIELDS)
