#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Makes what was written to the external memory take effect.
#define FIELDS(FIELD)
MESSAGE(ApplyExtMemoryMsg, m_applyExtMemoryMsg, APPLY_EXT_MEM)

#include "macros-off.h"
