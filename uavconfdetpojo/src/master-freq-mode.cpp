#include "master-freq-mode.h"

const std::array<_MasterFreqModeEnumBase, 4> MasterFreqModeEnum_values = {{
    {"R_1200", "1.2ГГц", FreqModeEnum::EXT_1200, {FreqModeEnum::STD_1200, FreqModeEnum::EXT_1200}},
    {"R_2400", "2.4ГГц", FreqModeEnum::EXT_2400, {FreqModeEnum::STD_2400, FreqModeEnum::EXT_2400}},
    {"R_4900", "4.9ГГц", FreqModeEnum::EXT_4900, {FreqModeEnum::STD_4900, FreqModeEnum::EXT_4900}},
    {"R_5800", "5.8ГГц", FreqModeEnum::EXT_5800, {FreqModeEnum::STD_5800, FreqModeEnum::EXT_5800}},
}};
