#include "msg/scan-result-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(ScanResultMsg, SCAN_RESULT_MSG_FIELDS)
