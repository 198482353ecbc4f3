#pragma once

#include "msg/msg.h"

/// Asks for VERS.
MESSAGE(GetVersMsg, m_getVersMsg, GET_VERS, NO_FIELDS)
