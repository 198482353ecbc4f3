#include "msg/firm/test-outs-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(TestOutsMsg, TEST_OUTS_MSG_FIELDS)
