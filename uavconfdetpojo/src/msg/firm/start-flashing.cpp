#include "msg/firm/start-flashing.h"

#include "define-fields.h"

DEFINE_MESSAGE(StartFlashing, START_FLASHING_FIELDS)
