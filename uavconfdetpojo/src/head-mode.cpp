#include "head-mode.h"

const std::array<_HeadModeEnumBase, 3> HeadModeEnum_values = {{{"OFF"}, {"SOUND"}, {"EW_CONTROL"}}};
