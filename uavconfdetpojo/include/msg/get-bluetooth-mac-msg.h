#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for BLUETOOTH_MAC.
#define FIELDS(FIELD)
MESSAGE(GetBluetoothMacMsg, m_getBluetoothMacMsg, GET_BLUETOOTH_MAC)

#include "macros-off.h"
