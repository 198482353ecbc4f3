#pragma once

#include "msg/msg.h"

/// Asks for CONFIG_EW.
MESSAGE(GetConfigEwMsg, m_getConfigEwMsg, GET_CONFIG_EW, NO_FIELDS)
