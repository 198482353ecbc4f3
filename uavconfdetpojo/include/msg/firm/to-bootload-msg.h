#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Makes the device enter its boot loader.
#define FIELDS(FIELD)
MESSAGE(ToBootloadMsg, m_toBootloadMsg, TO_BOOTLOAD)

#include "macros-off.h"
