#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Closes the loading.
#define FIELDS(FIELD)
MESSAGE(EndFlashingMsg, m_endFlashingMsg, END_FLASHING)

#include "macros-off.h"
