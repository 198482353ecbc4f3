#pragma once

#include "msg/msg.h"

#include <string>

#include "macros-on.h"

/// The Bluetooth address alone.
///
/// - `mac`: address in the text form of the device
#define FIELDS(FIELD) FIELD(std::string, mac, Mac)

MESSAGE(BluetoothMacMsg, m_bluetoothMacMsg, BLUETOOTH_MAC)

#include "macros-off.h"
