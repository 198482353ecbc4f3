#pragma once

#include "ai-prior.h"
#include "enum-class.h"
#include "freq-mode.h"
#include "master-freq-mode.h"

#include <array>
#include <string>
#include <vector>

#include "macros-on.h"

struct _ProtoEnumBase {
    _ProtoEnumBase(std::string wireName, std::string description, MasterFreqModeEnum lowestBand,
                   bool hasAiPriors);

    std::string strValue;
    std::string desc;
    std::vector<FreqModeEnum> freqModes;
    std::vector<MasterFreqModeEnum> masterModes;
    std::vector<AiPriorEnum> aiPriors;
};

/// Generation of a device. Columns: description, lowest band, whether the user may choose an AI mode. The
/// generations are in order: each one has everything that the ones before it have.
#define ENUMERATORS(ENUMERATOR)                                                                         \
    ENUMERATOR(K1, "Kelvane v1-5 (2.4 4.9 5.8)", MasterFreqModeEnum::R_2400, false)                     \
    ENUMERATOR(K6, "Kelvane v6 (2.4 4.9 5.8) + AI_priors + SDR_MODE", MasterFreqModeEnum::R_2400, true) \
    ENUMERATOR(K7, "Kelvane v7-... (1.2 2.4 4.9 5.8) + AI_priors + SDR_MODE + ...",                     \
               MasterFreqModeEnum::R_1200, true)                                                        \
    ENUMERATOR(K7EW, "Kelvane v7-... (1.2 2.4 4.9 5.8) + AI_priors + SDR_MODE + EW + ...",              \
               MasterFreqModeEnum::R_1200, true)
ENUMERATION(Proto)

class Proto : public EnumClass<ProtoEnum, ProtoEnum_values> {
public:
    using EnumClass::EnumClass;

    /// No caller today.
    std::string getDesc() const { return record().desc; }
    /// No caller today.
    std::vector<FreqModeEnum> getFreqModes() const { return record().freqModes; }
    /// The bands of the generation, in screen order.
    std::vector<MasterFreqModeEnum> getMasterModes() const { return record().masterModes; }
    /// The AI modes that a user may choose; none on K1.
    std::vector<AiPriorEnum> getAiPriors() const { return record().aiPriors; }
};

#include "macros-off.h"
