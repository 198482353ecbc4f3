#include "msg/scan-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ScanMsg, SCAN_MSG_FIELDS)
