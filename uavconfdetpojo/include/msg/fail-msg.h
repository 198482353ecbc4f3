#pragma once

#include "msg/msg.h"

#include <string>

#include "macros-on.h"

/// The device refuses a request.
///
/// - `respOn`: type of the refused request
/// - `failMsg`: text for the user
#define FIELDS(FIELD)                  \
    FIELD(MsgTypeEnum, respOn, RespOn) \
    FIELD(std::string, failMsg, FailMsg)

MESSAGE(FailMsg, m_failMsg, FAIL)

#include "macros-off.h"
