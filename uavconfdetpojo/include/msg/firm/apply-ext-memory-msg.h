#pragma once

#include "msg/msg.h"

/// Makes what was written to the external memory take effect.
MESSAGE(ApplyExtMemoryMsg, m_applyExtMemoryMsg, APPLY_EXT_MEM, NO_FIELDS)
