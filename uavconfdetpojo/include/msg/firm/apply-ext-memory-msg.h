#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Makes the device use the data that was written to its external memory.
#define FIELDS(FIELD)
MESSAGE(ApplyExtMemoryMsg, m_applyExtMemoryMsg, APPLY_EXT_MEM)

#include "macros-off.h"
