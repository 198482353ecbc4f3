#pragma once

#include "msg/msg.h"

/// Asks for EW_HARDWARE.
MESSAGE(GetEwHardwareMsg, m_getEwHardwareMsg, GET_EW_HARDWARE, NO_FIELDS)
