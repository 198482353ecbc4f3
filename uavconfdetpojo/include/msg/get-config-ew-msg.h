#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for CONFIG_EW.
#define FIELDS(FIELD)
MESSAGE(GetConfigEwMsg, m_getConfigEwMsg, GET_CONFIG_EW)

#include "macros-off.h"
