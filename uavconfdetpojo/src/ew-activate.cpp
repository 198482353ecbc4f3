#include "ew-activate.h"

const std::array<_EwActivateEnumBase, 2> EwActivateEnum_values = {{{"ALWAYS"}, {"TIMEOUT"}}};
