#pragma once

#include "enum-class.h"

#include <array>
#include <string>

/// Type of a configuration parameter.
enum class _ConfParamTypeEnum : int { STRING, NUMBER, BOOLEAN };
using ConfParamTypeEnum = _ConfParamTypeEnum;

struct _ConfParamTypeEnumBase {
    std::string strValue;
};

extern const std::array<_ConfParamTypeEnumBase, 3> ConfParamTypeEnum_values;

class ConfParamType : public EnumClass<ConfParamTypeEnum, ConfParamTypeEnum_values> {
public:
    using EnumClass::EnumClass;
};

template <>
struct EnumClassOf<ConfParamTypeEnum> {
    using type = ConfParamType;
};
