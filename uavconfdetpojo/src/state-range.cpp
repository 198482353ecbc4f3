#include "state-range.h"

#include "define-fields.h"

DEFINE_NESTED_VALUE(StateRange, STATE_RANGE_FIELDS)
