#include "ai-prior.h"
#include "master-freq-mode.h"
#include "proto.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using FM = FreqModeEnum;
using MM = MasterFreqModeEnum;

TEST(Enumerations, NamesLeadBothWaysAndExactly) {
    for (const FM mode : FreqMode::values())
        EXPECT_EQ(FreqMode::getEnumValue(FreqMode(mode).name()), mode);
    for (const char *unknown : {"", "std_2400", "STD_2400 ", "STD_240"})
        EXPECT_EQ(FreqMode::getEnumValue(unknown), std::nullopt) << unknown;
}

TEST(Enumerations, SweepRangesHaveTheirPlans) {
    struct Range {
        FM mode;
        float minFreq, maxFreq, step;
        std::size_t points;
    };
    for (const Range &range :
         {Range{FM::STD_1200, 1000, 1680, 10, 69}, Range{FM::EXT_1200, 830, 1730, 10, 91},
          Range{FM::STD_2400, 2400, 2484, 6, 15}, Range{FM::EXT_2400, 2350, 2550, 10, 21},
          Range{FM::STD_4900, 5150, 5354, 6, 35}, Range{FM::EXT_4900, 4800, 5460, 10, 67},
          Range{FM::STD_5800, 5725, 5851, 6, 22}, Range{FM::EXT_5800, 5470, 6100, 10, 64},
          Range{FM::CUSTOM, 0, 0, 0, 0}}) {
        const FreqMode mode(range.mode);
        SCOPED_TRACE(mode.name());
        EXPECT_EQ(mode.getMinFreq(), range.minFreq);
        EXPECT_EQ(mode.getMaxFreq(), range.maxFreq);
        const std::vector<float> plan = mode.getFreqList()->getFreqs();
        ASSERT_EQ(plan.size(), range.points);
        for (std::size_t i = 0; i < plan.size(); ++i)
            EXPECT_EQ(plan[i], range.minFreq + static_cast<float>(i) * range.step);
    }
}

TEST(Enumerations, OldGenerationsLackTheLowestBandAndTheOldestTheAiModes) {
    for (const Proto proto : Proto::values()) {
        SCOPED_TRACE(proto.name());
        const bool old = proto.getValue() < ProtoEnum::K7;
        EXPECT_EQ(proto.getMasterModes().front(), old ? MM::R_2400 : MM::R_1200);
        EXPECT_EQ(proto.getMasterModes().back(), MM::R_5800);
        EXPECT_EQ(proto.getFreqModes().front(), old ? FM::STD_2400 : FM::STD_1200);
        EXPECT_EQ(proto.getFreqModes().back(), FM::EXT_5800) << "CUSTOM belongs to no generation";
        if (proto.getValue() == ProtoEnum::K1)
            EXPECT_THAT(proto.getAiPriors(), IsEmpty());
        else
            EXPECT_THAT(proto.getAiPriors(),
                        ElementsAre(AiPriorEnum::DEFAULT, AiPriorEnum::FIELD, AiPriorEnum::CITY));
    }
}
