#pragma once

#include "msg/msg.h"

/// Drives the signalling outputs for a test.
#define TEST_OUTS_MSG_FIELDS(FIELD) \
    FIELD(bool, led, Led)           \
    FIELD(bool, vibro, Vibro)       \
    FIELD(bool, snd, Snd)

MESSAGE(TestOutsMsg, m_testOutsMsg, TEST_OUTS, TEST_OUTS_MSG_FIELDS)
