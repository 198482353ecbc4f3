#include "msg/firm/apply-ext-memory-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ApplyExtMemoryMsg, NO_FIELDS)
