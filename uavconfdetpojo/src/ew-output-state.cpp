#include "ew-output-state.h"

#include "define-fields.h"

DEFINE_NESTED_VALUE(EwOutputState, EW_OUTPUT_STATE_FIELDS)
