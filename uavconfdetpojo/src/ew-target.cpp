#include "ew-target.h"

#include "define-fields.h"

DEFINE_NESTED_VALUE(EwTarget, EW_TARGET_FIELDS)
