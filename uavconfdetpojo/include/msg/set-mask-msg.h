#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks the device to change the state of its mask.
#define FIELDS(FIELD)
MESSAGE(SetMaskMsg, m_setMaskMsg, SET_MASK)

#include "macros-off.h"
