#pragma once

#include "enum-class.h"

#include <array>
#include <string>

/// Detection mode: how often the device sweeps.
enum class _DetModeEnum : int { ECO, BASE, AUTO, CONT };
using DetModeEnum = _DetModeEnum;

struct _DetModeEnumBase {
    std::string strValue;
    std::string name;
    std::string shortName;
};

extern const std::array<_DetModeEnumBase, 4> DetModeEnum_values;

class DetMode : public EnumClass<DetModeEnum, DetModeEnum_values> {
public:
    using EnumClass::EnumClass;

    /// The display name; `name()` is the one on the wire.
    std::string getName() const { return record().name; }
    std::string getShortName() const { return record().shortName; }
};

template <>
struct EnumClassOf<DetModeEnum> {
    using type = DetMode;
};
