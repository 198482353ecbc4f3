#pragma once

#include "msg/msg.h"

/// Asks for BLUETOOTH_MAC.
MESSAGE(GetBluetoothMacMsg, m_getBluetoothMacMsg, GET_BLUETOOTH_MAC, NO_FIELDS)
