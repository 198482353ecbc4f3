#pragma once

#include "msg/msg.h"

/// Closes the loading.
MESSAGE(EndFlashingMsg, m_endFlashingMsg, END_FLASHING, NO_FIELDS)
