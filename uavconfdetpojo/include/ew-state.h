#pragma once

#include "enum-class.h"

#include <array>
#include <string>

/// State of an EW output.
enum class _EwStateEnum : int { ON, OFF, DISABLE, ERROR };
using EwStateEnum = _EwStateEnum;

struct _EwStateEnumBase {
    std::string strValue;
};

extern const std::array<_EwStateEnumBase, 4> EwStateEnum_values;

class EwState : public EnumClass<EwStateEnum, EwStateEnum_values> {
public:
    using EnumClass::EnumClass;
};

template <>
struct EnumClassOf<EwStateEnum> {
    using type = EwState;
};
