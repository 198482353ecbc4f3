#pragma once

#include "msg/msg.h"

#include <string>

/// Carries one piece of the image.
///
/// - `b64Buffer`: base64 text
#define WRITE_FLASH_MSG_FIELDS(FIELD) FIELD(std::string, b64Buffer, B64Buffer)

MESSAGE(WriteFlashMsg, m_writeFlashMsg, WRITE_FLASH, WRITE_FLASH_MSG_FIELDS)
