#include "freq-scan-result.h"

#include "define-fields.h"

DEFINE_NESTED_VALUE(FreqScanResult, FREQ_SCAN_RESULT_FIELDS)
