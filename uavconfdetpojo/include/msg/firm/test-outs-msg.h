#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Switches light, vibration and sound for a test.
#define FIELDS(FIELD)         \
    FIELD(bool, led, Led)     \
    FIELD(bool, vibro, Vibro) \
    FIELD(bool, snd, Snd)

MESSAGE(TestOutsMsg, m_testOutsMsg, TEST_OUTS)

#include "macros-off.h"
