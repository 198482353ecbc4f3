#pragma once

#include "msg/msg.h"
#include "param-values.h"

#include "macros-on.h"

/// Switches one EW output by hand.
#define FIELDS(FIELD)   \
    FIELD(int, id, Id)  \
    FIELD(bool, on, On) \
    FIELD(ParamValues, conf, Conf)

MESSAGE(SwitchEwOutputMsg, m_switchEwOutputMsg, SWITCH_EW_OUTPUT)

#include "macros-off.h"
