#include "proto.h"

namespace {

using FM = FreqModeEnum;
using MM = MasterFreqModeEnum;

const std::vector<FM> threeBandRanges = {FM::STD_2400, FM::EXT_2400, FM::STD_4900,
                                         FM::EXT_4900, FM::STD_5800, FM::EXT_5800};
const std::vector<FM> fourBandRanges = {FM::STD_1200, FM::EXT_1200, FM::STD_2400, FM::EXT_2400,
                                        FM::STD_4900, FM::EXT_4900, FM::STD_5800, FM::EXT_5800};
const std::vector<MM> threeBands = {MM::R_2400, MM::R_4900, MM::R_5800};
const std::vector<MM> fourBands = {MM::R_1200, MM::R_2400, MM::R_4900, MM::R_5800};
const std::vector<AiPriorEnum> priors = {AiPriorEnum::DEFAULT, AiPriorEnum::FIELD, AiPriorEnum::CITY};

} // namespace

const std::array<_ProtoEnumBase, 4> ProtoEnum_values = {{
    {"K1", "Kelvane v1-5 (2.4 4.9 5.8)", threeBandRanges, threeBands, {}},
    {"K6", "Kelvane v6 (2.4 4.9 5.8) + AI_priors + SDR_MODE", threeBandRanges, threeBands, priors},
    {"K7", "Kelvane v7-... (1.2 2.4 4.9 5.8) + AI_priors + SDR_MODE + ...", fourBandRanges, fourBands,
     priors},
    {"K7EW", "Kelvane v7-... (1.2 2.4 4.9 5.8) + AI_priors + SDR_MODE + EW + ...", fourBandRanges, fourBands,
     priors},
}};
