#include "freq-calib.h"

#include "define-fields.h"

DEFINE_NESTED_VALUE(FreqCalib, FREQ_CALIB_FIELDS)
