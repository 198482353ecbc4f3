#pragma once

#include "enum-class.h"

#include <array>
#include <string>

/// Class of a signal, as the detector judges it.
enum class _SigTypeEnum : int { NONE, WIFI, DIG, FPV, BLOCK, ALL };
using SigTypeEnum = _SigTypeEnum;

struct _SigTypeEnumBase {
    std::string strValue;
};

extern const std::array<_SigTypeEnumBase, 6> SigTypeEnum_values;

class SigType : public EnumClass<SigTypeEnum, SigTypeEnum_values> {
public:
    using EnumClass::EnumClass;
};

template <>
struct EnumClassOf<SigTypeEnum> {
    using type = SigType;
};
