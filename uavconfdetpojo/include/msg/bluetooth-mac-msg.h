#pragma once

#include "msg/msg.h"

#include <string>

/// The Bluetooth address alone.
///
/// - `mac`: address in the text form of the device
#define BLUETOOTH_MAC_MSG_FIELDS(FIELD) FIELD(std::string, mac, Mac)

MESSAGE(BluetoothMacMsg, m_bluetoothMacMsg, BLUETOOTH_MAC, BLUETOOTH_MAC_MSG_FIELDS)
