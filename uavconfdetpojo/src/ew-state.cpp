#include "ew-state.h"

const std::array<_EwStateEnumBase, 4> EwStateEnum_values = {{{"ON"}, {"OFF"}, {"DISABLE"}, {"ERROR"}}};
