#include "sig-type.h"

const std::array<_SigTypeEnumBase, 6> SigTypeEnum_values = {
    {{"NONE"}, {"WIFI"}, {"DIG"}, {"FPV"}, {"BLOCK"}, {"ALL"}}};
