#include "ew-output.h"

#include "define-fields.h"

DEFINE_NESTED_VALUE(EwOutput, EW_OUTPUT_FIELDS)
