#pragma once

#include "enum-class.h"
#include "freq-mode.h"

#include <array>
#include <string>
#include <vector>

#include "macros-on.h"

struct _MasterFreqModeEnumBase {
    std::string strValue;
    std::string viewName;
    FreqModeEnum maxRangeFreqMode;
    std::vector<FreqModeEnum> modes;
};

/// A band of the device. Columns: its name, its widest sweep range, all its sweep ranges with the standard
/// one first.
#define ENUMERATORS(ENUMERATOR)                                                                            \
    ENUMERATOR(R_1200, "1.2ГГц", FreqModeEnum::EXT_1200, {FreqModeEnum::STD_1200, FreqModeEnum::EXT_1200}) \
    ENUMERATOR(R_2400, "2.4ГГц", FreqModeEnum::EXT_2400, {FreqModeEnum::STD_2400, FreqModeEnum::EXT_2400}) \
    ENUMERATOR(R_4900, "4.9ГГц", FreqModeEnum::EXT_4900, {FreqModeEnum::STD_4900, FreqModeEnum::EXT_4900}) \
    ENUMERATOR(R_5800, "5.8ГГц", FreqModeEnum::EXT_5800, {FreqModeEnum::STD_5800, FreqModeEnum::EXT_5800})
ENUMERATION(MasterFreqMode)

class MasterFreqMode : public EnumClass<MasterFreqModeEnum, MasterFreqModeEnum_values> {
public:
    using EnumClass::EnumClass;

    std::string getViewName() const { return record().viewName; }
    /// The widest sweep range of the band.
    FreqModeEnum getMaxRangeFreqMode() const { return record().maxRangeFreqMode; }
    FreqMode getWidestRange() const { return getMaxRangeFreqMode(); }
    /// The sweep ranges of the band, the standard one first.
    std::vector<FreqModeEnum> getModes() const { return record().modes; }
};

#include "macros-off.h"
