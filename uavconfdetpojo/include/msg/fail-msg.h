#pragma once

#include "msg/msg.h"

#include <string>

/// The device refused a message.
///
/// - `respOn`: type of the refused message
/// - `failMsg`: text for the user
#define FAIL_MSG_FIELDS(FIELD)         \
    FIELD(MsgTypeEnum, respOn, RespOn) \
    FIELD(std::string, failMsg, FailMsg)

MESSAGE(FailMsg, m_failMsg, FAIL, FAIL_MSG_FIELDS)
