#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Tells the device to leave the boot loader for its application.
#define FIELDS(FIELD)
MESSAGE(ToAppMsg, m_toAppMsg, TO_APP)

#include "macros-off.h"
