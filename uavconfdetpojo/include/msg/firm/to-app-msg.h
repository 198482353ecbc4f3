#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Makes the device leave its boot loader and start its application.
#define FIELDS(FIELD)
MESSAGE(ToAppMsg, m_toAppMsg, TO_APP)

#include "macros-off.h"
