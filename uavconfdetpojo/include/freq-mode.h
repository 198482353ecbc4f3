#pragma once

#include "enum-class.h"
#include "freq-list.h"

#include <array>
#include <memory>
#include <string>

/// A sweep range inside a band: the standard or the extended one, or a range that only the device knows.
enum class _FreqModeEnum : int {
    STD_1200,
    EXT_1200,
    STD_2400,
    EXT_2400,
    STD_4900,
    EXT_4900,
    STD_5800,
    EXT_5800,
    CUSTOM
};
using FreqModeEnum = _FreqModeEnum;

struct _FreqModeEnumBase {
    std::string strValue;
    std::shared_ptr<FreqList> freqList;
    int visibleIndex;
    float maxFreq;
    float minFreq;
    std::string viewName;
};

extern const std::array<_FreqModeEnumBase, 9> FreqModeEnum_values;

class FreqMode : public EnumClass<FreqModeEnum, FreqModeEnum_values> {
public:
    using EnumClass::EnumClass;

    /// The frequency plan, shared by all who ask for it and not to be changed.
    std::shared_ptr<FreqList> getFreqList() const { return record().freqList; }
    /// Place among the ranges that a screen offers, -1 for a range that none offers.
    int getVisibleIndex() const { return record().visibleIndex; }
    /// Limits of the range in MHz, both inclusive.
    float getMaxFreq() const { return record().maxFreq; }
    float getMinFreq() const { return record().minFreq; }
    std::string getViewName() const { return record().viewName; }
};

template <>
struct EnumClassOf<FreqModeEnum> {
    using type = FreqMode;
};
