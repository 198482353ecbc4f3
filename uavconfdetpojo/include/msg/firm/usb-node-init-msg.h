#pragma once

#include "msg/msg.h"

/// Initialises the USB node.
#define USB_NODE_INIT_MSG_FIELDS(FIELD) FIELD(bool, init, Init)

MESSAGE(UsbNodeInitMsg, m_usbNodeInitMsg, USB_NODE_INIT, USB_NODE_INIT_MSG_FIELDS)
