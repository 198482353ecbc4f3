#pragma once

#include "msg/msg.h"

#include <cstdint>
#include <string>

#include "macros-on.h"

/// Writes to the external memory of the device.
///
/// - `offset`: position; exact up to 2^53
#define FIELDS(FIELD)                   \
    FIELD(std::int64_t, offset, Offset) \
    FIELD(std::string, data, Data)

MESSAGE(WriteExtMemoryMsg, m_writeExtMemoryMsg, WRITE_EXT_MEM)

#include "macros-off.h"
