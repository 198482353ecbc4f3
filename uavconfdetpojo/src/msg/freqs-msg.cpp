#include "msg/freqs-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(FreqsMsg, FREQS_MSG_FIELDS)
