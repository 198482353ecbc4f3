#pragma once

#include "msg/msg.h"

/// Tells the device to leave the boot loader for its application.
MESSAGE(ToAppMsg, m_toAppMsg, TO_APP, NO_FIELDS)
