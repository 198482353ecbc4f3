#include "msg/firm/write-flash-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(WriteFlashMsg, WRITE_FLASH_MSG_FIELDS)
