#include "ai-prior.h"
#include "conf-param-type.h"
#include "det-mode.h"
#include "ew-activate.h"
#include "ew-state.h"
#include "freq-mode.h"
#include "head-mode.h"
#include "master-freq-mode.h"
#include "proto.h"
#include "sig-type.h"

inline namespace kelvane {

// The rows of a table are listed beside its enumerators. The order of these lines does not matter, because no
// table uses another one.
const decltype(AiPriorEnum_values) AiPriorEnum_values = rowsOfAiPrior<_AiPriorEnumBase>();
const decltype(ConfParamTypeEnum_values) ConfParamTypeEnum_values =
    rowsOfConfParamType<_ConfParamTypeEnumBase>();
const decltype(DetModeEnum_values) DetModeEnum_values = rowsOfDetMode<_DetModeEnumBase>();
const decltype(EwActivateEnum_values) EwActivateEnum_values = rowsOfEwActivate<_EwActivateEnumBase>();
const decltype(EwStateEnum_values) EwStateEnum_values = rowsOfEwState<_EwStateEnumBase>();
const decltype(FreqModeEnum_values) FreqModeEnum_values = rowsOfFreqMode<_FreqModeEnumBase>();
const decltype(HeadModeEnum_values) HeadModeEnum_values = rowsOfHeadMode<_HeadModeEnumBase>();
const decltype(MasterFreqModeEnum_values) MasterFreqModeEnum_values =
    rowsOfMasterFreqMode<_MasterFreqModeEnumBase>();
const decltype(ProtoEnum_values) ProtoEnum_values = rowsOfProto<_ProtoEnumBase>();
const decltype(SigTypeEnum_values) SigTypeEnum_values = rowsOfSigType<_SigTypeEnumBase>();

_FreqModeEnumBase::_FreqModeEnumBase(std::string wireName, int index, int minMHz, int maxMHz, int stepMHz,
                                     std::string name)
    : strValue(std::move(wireName))
    , visibleIndex(index)
    , maxFreq(static_cast<float>(maxMHz))
    , minFreq(static_cast<float>(minMHz))
    , viewName(std::move(name)) {
    std::vector<float> plan;
    for (int freq = minMHz; stepMHz > 0 && freq <= maxMHz; freq += stepMHz)
        plan.push_back(static_cast<float>(freq));
    freqList = std::make_shared<FreqList>(plan);
}

_ProtoEnumBase::_ProtoEnumBase(std::string wireName, std::string description, MasterFreqModeEnum lowestBand,
                               bool hasAiPriors)
    : strValue(std::move(wireName))
    , desc(std::move(description)) {
    using FM = FreqModeEnum;
    using MM = MasterFreqModeEnum;
    freqModes = {FM::STD_2400, FM::EXT_2400, FM::STD_4900, FM::EXT_4900, FM::STD_5800, FM::EXT_5800};
    masterModes = {MM::R_2400, MM::R_4900, MM::R_5800};
    if (lowestBand == MM::R_1200) {
        freqModes.insert(freqModes.begin(), {FM::STD_1200, FM::EXT_1200});
        masterModes.insert(masterModes.begin(), MM::R_1200);
    }
    if (hasAiPriors)
        aiPriors = {AiPriorEnum::DEFAULT, AiPriorEnum::FIELD, AiPriorEnum::CITY};
}

} // namespace kelvane
