#pragma once

#include "enum-class.h"
#include "freq-list.h"

#include <array>
#include <memory>
#include <string>

#include "macros-on.h"

struct _FreqModeEnumBase {
    /// A step of 0 gives an empty plan.
    _FreqModeEnumBase(std::string wireName, int index, int minMHz, int maxMHz, int stepMHz, std::string name);

    std::string strValue;
    std::shared_ptr<FreqList> freqList;
    int visibleIndex;
    float maxFreq;
    float minFreq;
    std::string viewName;
};

/// A sweep range inside a band. Columns: place in a list for the user (-1: not in the list); lowest
/// frequency, highest frequency and step of its plan, in MHz; name.
///
/// On purpose: the standard range at 4.9 GHz is 5150 to 5354 MHz. The standard ranges at 2.4, 4.9 and 5.8 GHz
/// have steps of 6 MHz, as the product has them; all others have steps of 10 MHz. A device may report CUSTOM,
/// which no generation lists and which has no plan.
#define ENUMERATORS(ENUMERATOR)                     \
    ENUMERATOR(STD_1200, 0, 1000, 1680, 10, "1.2")  \
    ENUMERATOR(EXT_1200, 1, 830, 1730, 10, "1.2+")  \
    ENUMERATOR(STD_2400, 2, 2400, 2484, 6, "2.4")   \
    ENUMERATOR(EXT_2400, 3, 2350, 2550, 10, "2.4+") \
    ENUMERATOR(STD_4900, 4, 5150, 5354, 6, "4.9")   \
    ENUMERATOR(EXT_4900, 5, 4800, 5460, 10, "4.9+") \
    ENUMERATOR(STD_5800, 6, 5725, 5851, 6, "5.8")   \
    ENUMERATOR(EXT_5800, 7, 5470, 6100, 10, "5.8+") \
    ENUMERATOR(CUSTOM, -1, 0, 0, 0, "Заданный")
ENUMERATION(FreqMode)

class FreqMode : public EnumClass<FreqModeEnum, FreqModeEnum_values> {
public:
    using EnumClass::EnumClass;

    /// The frequency plan. All callers share it; do not change it.
    std::shared_ptr<FreqList> getFreqList() const { return record().freqList; }
    /// Place in a list for the user; -1 for a range that is not in the list.
    int getVisibleIndex() const { return record().visibleIndex; }
    /// Limits of the range in MHz, both inclusive.
    float getMaxFreq() const { return record().maxFreq; }
    float getMinFreq() const { return record().minFreq; }
    std::string getViewName() const { return record().viewName; }
};

#include "macros-off.h"
