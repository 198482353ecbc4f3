#include "conf-param.h"
#include "ew-output-state.h"
#include "ew-output.h"
#include "ew-target.h"
#include "freq-calib.h"
#include "freq-list.h"
#include "freq-mode-setting.h"
#include "freq-scan-result.h"
#include "object-io.h"
#include "state-range.h"

template class NestedValue<ConfParam>;
template class NestedValue<EwOutput>;
template class NestedValue<EwOutputState>;
template class NestedValue<EwTarget>;
template class NestedValue<FreqCalib>;
template class NestedValue<FreqList>;
template class NestedValue<FreqModeSetting>;
template class NestedValue<FreqScanResult>;
template class NestedValue<StateRange>;
