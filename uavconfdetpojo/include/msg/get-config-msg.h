#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for CONFIG.
#define FIELDS(FIELD)
MESSAGE(GetConfigMsg, m_getConfigMsg, GET_CONFIG)

#include "macros-off.h"
