#include "msg/firm/to-bootload-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ToBootloadMsg, NO_FIELDS)
