#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for EW_HARDWARE.
#define FIELDS(FIELD)
MESSAGE(GetEwHardwareMsg, m_getEwHardwareMsg, GET_EW_HARDWARE)

#include "macros-off.h"
