#pragma once

#include "enum-class.h"
#include "freq-mode.h"

#include <array>
#include <string>
#include <vector>

/// A frequency band of the device.
enum class _MasterFreqModeEnum : int { R_1200, R_2400, R_4900, R_5800 };
using MasterFreqModeEnum = _MasterFreqModeEnum;

struct _MasterFreqModeEnumBase {
    std::string strValue;
    std::string viewName;
    FreqModeEnum maxRangeFreqMode;
    std::vector<FreqModeEnum> modes;
};

extern const std::array<_MasterFreqModeEnumBase, 4> MasterFreqModeEnum_values;

class MasterFreqMode : public EnumClass<MasterFreqModeEnum, MasterFreqModeEnum_values> {
public:
    using EnumClass::EnumClass;

    std::string getViewName() const { return record().viewName; }
    /// The widest range of the band.
    FreqModeEnum getMaxRangeFreqMode() const { return record().maxRangeFreqMode; }
    /// The ranges of the band, standard first.
    std::vector<FreqModeEnum> getModes() const { return record().modes; }
};

template <>
struct EnumClassOf<MasterFreqModeEnum> {
    using type = MasterFreqMode;
};
