#pragma once

#include "enum-class.h"

#include <array>
#include <string>

/// What the headset jack does.
enum class _HeadModeEnum : int { OFF, SOUND, EW_CONTROL };
using HeadModeEnum = _HeadModeEnum;

struct _HeadModeEnumBase {
    std::string strValue;
};

extern const std::array<_HeadModeEnumBase, 3> HeadModeEnum_values;

class HeadMode : public EnumClass<HeadModeEnum, HeadModeEnum_values> {
public:
    using EnumClass::EnumClass;
};

template <>
struct EnumClassOf<HeadModeEnum> {
    using type = HeadMode;
};
