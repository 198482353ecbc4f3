#pragma once

#include "msg/msg.h"

#include <string>

#include "macros-on.h"

/// The versions of the device.
#define FIELDS(FIELD)                  \
    FIELD(std::string, hwVers, HwVers) \
    FIELD(std::string, fwVers, FwVers) \
    FIELD(std::string, bootVers, BootVers)

MESSAGE(VersMsg, m_versMsg, VERS)

#include "macros-off.h"
