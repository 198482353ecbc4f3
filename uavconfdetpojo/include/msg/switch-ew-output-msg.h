#pragma once

#include "msg/msg.h"
#include "param-values.h"

/// Switches one EW output by hand.
#define SWITCH_EW_OUTPUT_MSG_FIELDS(FIELD) \
    FIELD(int, id, Id)                     \
    FIELD(bool, on, On)                    \
    FIELD(ParamValues, conf, Conf)

MESSAGE(SwitchEwOutputMsg, m_switchEwOutputMsg, SWITCH_EW_OUTPUT, SWITCH_EW_OUTPUT_MSG_FIELDS)
