#pragma once

#include "msg/msg.h"

/// Switches the device off.
MESSAGE(ShutdownMsg, m_shutdownMsg, SHUTDOWN, NO_FIELDS)
