#pragma once

#include "msg/msg.h"

#include <string>

#include "macros-on.h"

/// One piece of the firmware image.
///
/// - `b64Buffer`: base64 text
#define FIELDS(FIELD) FIELD(std::string, b64Buffer, B64Buffer)

MESSAGE(WriteFlashMsg, m_writeFlashMsg, WRITE_FLASH)

#include "macros-off.h"
