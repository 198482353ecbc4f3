#pragma once

#include "enum-class.h"

#include <array>
#include <string>

/// How an EW target acts.
enum class _EwActivateEnum : int { ALWAYS, TIMEOUT };
using EwActivateEnum = _EwActivateEnum;

struct _EwActivateEnumBase {
    std::string strValue;
};

extern const std::array<_EwActivateEnumBase, 2> EwActivateEnum_values;

class EwActivate : public EnumClass<EwActivateEnum, EwActivateEnum_values> {
public:
    using EnumClass::EnumClass;
};

template <>
struct EnumClassOf<EwActivateEnum> {
    using type = EwActivate;
};
