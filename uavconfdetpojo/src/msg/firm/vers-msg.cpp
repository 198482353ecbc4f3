#include "msg/firm/vers-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(VersMsg, VERS_MSG_FIELDS)
