#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// The device accepts a request.
///
/// - `respOn`: type of that request
#define FIELDS(FIELD) FIELD(MsgTypeEnum, respOn, RespOn)

MESSAGE(OkMsg, m_okMsg, OK)

#include "macros-off.h"
