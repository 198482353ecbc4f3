#include "msg/firm/to-app-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ToAppMsg, NO_FIELDS)
