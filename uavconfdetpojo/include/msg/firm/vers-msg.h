#pragma once

#include "msg/msg.h"

#include <string>

/// The versions of the device.
#define VERS_MSG_FIELDS(FIELD)         \
    FIELD(std::string, hwVers, HwVers) \
    FIELD(std::string, fwVers, FwVers) \
    FIELD(std::string, bootVers, BootVers)

MESSAGE(VersMsg, m_versMsg, VERS, VERS_MSG_FIELDS)
