#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Switches the device off.
#define FIELDS(FIELD)
MESSAGE(ShutdownMsg, m_shutdownMsg, SHUTDOWN)

#include "macros-off.h"
