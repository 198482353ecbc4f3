#include "msg/firm/get-vers-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetVersMsg, NO_FIELDS)
