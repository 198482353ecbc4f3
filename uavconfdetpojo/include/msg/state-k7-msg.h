#pragma once

#include "msg/msg.h"

#include <string>

/// The state of the Bluetooth link.
///
/// - `btConnect`: a peer is connected
/// - `btMac`: address in the text form of the device
#define STATE_K7_MSG_FIELDS(FIELD)    \
    FIELD(bool, btConnect, BtConnect) \
    FIELD(std::string, btMac, BtMac)

MESSAGE(StateK7Msg, m_stateK7Msg, STATE_K7, STATE_K7_MSG_FIELDS)
