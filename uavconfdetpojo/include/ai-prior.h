#pragma once

#include "enum-class.h"

#include <array>
#include <string>

#include "macros-on.h"

struct _AiPriorEnumBase {
    std::string strValue;
    std::string name;
    std::string shortName;
};

/// AI mode: the surroundings to which the device's AI adapts.
#define ENUMERATORS(ENUMERATOR)                  \
    ENUMERATOR(AUTO, "Автоматический", "Авто")   \
    ENUMERATOR(DEFAULT, "По умолчанию", "Оптим") \
    ENUMERATOR(FIELD, "Поле", "Поле")            \
    ENUMERATOR(CITY, "Город", "Город")           \
    ENUMERATOR(NONE, "Нет", "Нет")
ENUMERATION(AiPrior)

class AiPrior : public EnumClass<AiPriorEnum, AiPriorEnum_values> {
public:
    using EnumClass::EnumClass;

    /// The display name; `name()` is the wire name.
    std::string getName() const { return record().name; }
    std::string getShortName() const { return record().shortName; }
};

#include "macros-off.h"
