#pragma once

#include "enum-class.h"

#include <array>
#include <string>

#include "macros-on.h"

struct _DetModeEnumBase {
    std::string strValue;
    std::string name;
    std::string shortName;
};

/// Detection mode: how often the device sweeps.
#define ENUMERATORS(ENUMERATOR)            \
    ENUMERATOR(ECO, "Экономичный", "Экон") \
    ENUMERATOR(BASE, "Базовый", "Станд")   \
    ENUMERATOR(AUTO, "Авто", "Авто")       \
    ENUMERATOR(CONT, "Непрерывный", "Непр")
ENUMERATION(DetMode)

class DetMode : public EnumClass<DetModeEnum, DetModeEnum_values> {
public:
    using EnumClass::EnumClass;

    /// The display name; `name()` is the wire name.
    std::string getName() const { return record().name; }
    std::string getShortName() const { return record().shortName; }
};

#include "macros-off.h"
