#pragma once

#include "enum-class.h"

#include <array>
#include <string>

/// Surroundings for which the device's AI weighs its findings.
enum class _AiPriorEnum : int { AUTO, DEFAULT, FIELD, CITY, NONE };
using AiPriorEnum = _AiPriorEnum;

struct _AiPriorEnumBase {
    std::string strValue;
    std::string name;
    std::string shortName;
};

extern const std::array<_AiPriorEnumBase, 5> AiPriorEnum_values;

class AiPrior : public EnumClass<AiPriorEnum, AiPriorEnum_values> {
public:
    using EnumClass::EnumClass;

    /// The display name; `name()` is the one on the wire.
    std::string getName() const { return record().name; }
    std::string getShortName() const { return record().shortName; }
};

template <>
struct EnumClassOf<AiPriorEnum> {
    using type = AiPrior;
};
