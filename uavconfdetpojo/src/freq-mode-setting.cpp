#include "freq-mode-setting.h"

#include "define-fields.h"

DEFINE_NESTED_VALUE(FreqModeSetting, FREQ_MODE_SETTING_FIELDS)
