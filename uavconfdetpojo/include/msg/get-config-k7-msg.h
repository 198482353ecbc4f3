#pragma once

#include "msg/msg.h"

/// Asks for CONFIG_K7.
MESSAGE(GetConfigK7Msg, m_getConfigK7Msg, GET_CONFIG_K7, NO_FIELDS)
