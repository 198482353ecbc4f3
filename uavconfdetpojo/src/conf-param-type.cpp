#include "conf-param-type.h"

const std::array<_ConfParamTypeEnumBase, 3> ConfParamTypeEnum_values = {
    {{"STRING"}, {"NUMBER"}, {"BOOLEAN"}}};
