#pragma once

#include "msg/msg.h"

#include <string>

#include "macros-on.h"

/// The state of the Bluetooth link.
///
/// - `btConnect`: true if a peer is connected
/// - `btMac`: address in the text form of the device
#define FIELDS(FIELD)                 \
    FIELD(bool, btConnect, BtConnect) \
    FIELD(std::string, btMac, BtMac)

MESSAGE(StateK7Msg, m_stateK7Msg, STATE_K7)

#include "macros-off.h"
