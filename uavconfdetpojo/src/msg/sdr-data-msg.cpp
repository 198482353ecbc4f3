#include "msg/sdr-data-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(SdrDataMsg, SDR_DATA_MSG_FIELDS)
