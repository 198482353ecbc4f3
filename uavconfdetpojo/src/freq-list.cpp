#include "freq-list.h"

#include "define-fields.h"

DEFINE_NESTED_VALUE(FreqList, FREQ_LIST_FIELDS)
