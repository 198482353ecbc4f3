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

/// Surroundings for which the device's AI weighs its findings.
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

    /// The display name; `name()` is the one on the wire.
    std::string getName() const { return record().name; }
    std::string getShortName() const { return record().shortName; }
};

#include "macros-off.h"
