#pragma once

#include "msg/msg.h"

/// Asks for CONFIG.
MESSAGE(GetConfigMsg, m_getConfigMsg, GET_CONFIG, NO_FIELDS)
