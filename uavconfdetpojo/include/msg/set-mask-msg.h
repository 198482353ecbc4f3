#pragma once

#include "msg/msg.h"

/// Asks the device to change the state of its mask.
MESSAGE(SetMaskMsg, m_setMaskMsg, SET_MASK, NO_FIELDS)
