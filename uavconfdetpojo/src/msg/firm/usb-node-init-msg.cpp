#include "msg/firm/usb-node-init-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(UsbNodeInitMsg, USB_NODE_INIT_MSG_FIELDS)
