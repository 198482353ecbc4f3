#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// The device accepts a message.
///
/// - `respOn`: type of the message that this answers
#define FIELDS(FIELD) FIELD(MsgTypeEnum, respOn, RespOn)

MESSAGE(OkMsg, m_okMsg, OK)

#include "macros-off.h"
