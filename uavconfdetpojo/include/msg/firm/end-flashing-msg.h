#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Ends the loading of a firmware image.
#define FIELDS(FIELD)
MESSAGE(EndFlashingMsg, m_endFlashingMsg, END_FLASHING)

#include "macros-off.h"
