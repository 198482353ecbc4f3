#include "msg/firm/shutdown-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ShutdownMsg, NO_FIELDS)
