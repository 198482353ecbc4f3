#include "msg/bluetooth-mac-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(BluetoothMacMsg, BLUETOOTH_MAC_MSG_FIELDS)
