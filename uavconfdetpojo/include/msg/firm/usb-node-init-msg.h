#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Initialises the USB node.
#define FIELDS(FIELD) FIELD(bool, init, Init)

MESSAGE(UsbNodeInitMsg, m_usbNodeInitMsg, USB_NODE_INIT)

#include "macros-off.h"
