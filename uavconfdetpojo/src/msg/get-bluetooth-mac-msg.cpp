#include "msg/get-bluetooth-mac-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(GetBluetoothMacMsg, NO_FIELDS)
