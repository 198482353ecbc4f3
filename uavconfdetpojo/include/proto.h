#pragma once

#include "ai-prior.h"
#include "enum-class.h"
#include "freq-mode.h"
#include "master-freq-mode.h"

#include <array>
#include <string>
#include <vector>

/// Protocol generation of a device. The generations are ordered: what one has, all later ones have.
enum class _ProtoEnum : int { K1, K6, K7, K7EW };
using ProtoEnum = _ProtoEnum;

struct _ProtoEnumBase {
    std::string strValue;
    std::string desc;
    std::vector<FreqModeEnum> freqModes;
    std::vector<MasterFreqModeEnum> masterModes;
    std::vector<AiPriorEnum> aiPriors;
};

extern const std::array<_ProtoEnumBase, 4> ProtoEnum_values;

class Proto : public EnumClass<ProtoEnum, ProtoEnum_values> {
public:
    using EnumClass::EnumClass;

    std::string getDesc() const { return record().desc; }
    std::vector<FreqModeEnum> getFreqModes() const { return record().freqModes; }
    /// The bands of the generation, in screen order.
    std::vector<MasterFreqModeEnum> getMasterModes() const { return record().masterModes; }
    /// The AI modes that a user may choose; none on K1.
    std::vector<AiPriorEnum> getAiPriors() const { return record().aiPriors; }
};

template <>
struct EnumClassOf<ProtoEnum> {
    using type = Proto;
};
