#pragma once

#include "msg/msg.h"

/// Tells the device to enter its boot loader.
MESSAGE(ToBootloadMsg, m_toBootloadMsg, TO_BOOTLOAD, NO_FIELDS)
