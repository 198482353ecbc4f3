#pragma once

#include "msg/msg.h"

/// The device took a message.
///
/// - `respOn`: type of the message that this answers
#define OK_MSG_FIELDS(FIELD) FIELD(MsgTypeEnum, respOn, RespOn)

MESSAGE(OkMsg, m_okMsg, OK, OK_MSG_FIELDS)
