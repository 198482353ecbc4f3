#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Tells the device to enter its boot loader.
#define FIELDS(FIELD)
MESSAGE(ToBootloadMsg, m_toBootloadMsg, TO_BOOTLOAD)

#include "macros-off.h"
