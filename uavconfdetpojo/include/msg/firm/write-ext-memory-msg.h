#pragma once

#include "msg/msg.h"

#include <cstdint>
#include <string>

/// Writes to the external memory of the device.
///
/// - `offset`: position; exact up to 2^53
#define WRITE_EXT_MEMORY_MSG_FIELDS(FIELD) \
    FIELD(std::int64_t, offset, Offset)    \
    FIELD(std::string, data, Data)

MESSAGE(WriteExtMemoryMsg, m_writeExtMemoryMsg, WRITE_EXT_MEM, WRITE_EXT_MEMORY_MSG_FIELDS)
