#include "msg/firm/write-ext-memory-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(WriteExtMemoryMsg, WRITE_EXT_MEMORY_MSG_FIELDS)
