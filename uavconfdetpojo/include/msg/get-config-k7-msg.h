#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Asks for CONFIG_K7.
#define FIELDS(FIELD)
MESSAGE(GetConfigK7Msg, m_getConfigK7Msg, GET_CONFIG_K7)

#include "macros-off.h"
