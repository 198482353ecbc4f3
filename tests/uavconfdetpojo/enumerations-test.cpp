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

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The wire names in the order of the enumerators, and that they lead both ways.
template <typename Class>
void expectNames(const std::vector<std::string> &names) {
    ASSERT_EQ(Class::getLength(), static_cast<int>(names.size()));
    int ordinal = 0;
    for (const auto enumerator : Class::values()) {
        Class wrapped(Class::values().back());
        wrapped.setValue(enumerator);
        EXPECT_EQ(wrapped.getValue(), enumerator);
        EXPECT_EQ(wrapped.ordinal(), ordinal);
        EXPECT_EQ(wrapped.name(), names.at(static_cast<std::size_t>(ordinal)));
        EXPECT_EQ(Class::getEnumValue(wrapped.name()), enumerator);
        ++ordinal;
    }
    for (const char *unknown : {"", "none", "std_2400", "k7", "base", "AUTO ", "CONTINUOUS"})
        EXPECT_EQ(Class::getEnumValue(unknown), std::nullopt) << unknown;
}

} // namespace

TEST(Enumerations, WireNamesLeadBothWays) {
    expectNames<Proto>({"K1", "K6", "K7", "K7EW"});
    expectNames<MasterFreqMode>({"R_1200", "R_2400", "R_4900", "R_5800"});
    expectNames<FreqMode>({"STD_1200", "EXT_1200", "STD_2400", "EXT_2400", "STD_4900", "EXT_4900", "STD_5800",
                           "EXT_5800", "CUSTOM"});
    expectNames<DetMode>({"ECO", "BASE", "AUTO", "CONT"});
    expectNames<SigType>({"NONE", "WIFI", "DIG", "FPV", "BLOCK", "ALL"});
    expectNames<HeadMode>({"OFF", "SOUND", "EW_CONTROL"});
    expectNames<AiPrior>({"AUTO", "DEFAULT", "FIELD", "CITY", "NONE"});
    expectNames<EwState>({"ON", "OFF", "DISABLE", "ERROR"});
    expectNames<EwActivate>({"ALWAYS", "TIMEOUT"});
    expectNames<ConfParamType>({"STRING", "NUMBER", "BOOLEAN"});
}

TEST(Enumerations, DisplayNamesStandBesideWireNames) {
    std::string names;
    for (const DetMode mode : DetMode::values())
        names += mode.getName() + "/" + mode.getShortName() + " ";
    EXPECT_EQ(names, "Экономичный/Экон Базовый/Станд Авто/Авто Непрерывный/Непр ");
    names.clear();
    for (const AiPrior prior : AiPrior::values())
        names += prior.getName() + "/" + prior.getShortName() + " ";
    EXPECT_EQ(names, "Автоматический/Авто По умолчанию/Оптим Поле/Поле Город/Город Нет/Нет ");
}

TEST(Enumerations, SweepRangesHaveTheirLimitsAndPlans) {
    struct Range {
        FreqModeEnum mode;
        int visibleIndex;
        float minFreq, maxFreq, step;
        std::size_t points;
        std::string viewName;
    };
    using FM = FreqModeEnum;
    for (const Range &range :
         {Range{FM::STD_1200, 0, 1000, 1680, 10, 69, "1.2"},
          Range{FM::EXT_1200, 1, 830, 1730, 10, 91, "1.2+"}, Range{FM::STD_2400, 2, 2400, 2484, 6, 15, "2.4"},
          Range{FM::EXT_2400, 3, 2350, 2550, 10, 21, "2.4+"},
          Range{FM::STD_4900, 4, 5150, 5354, 6, 35, "4.9"},
          Range{FM::EXT_4900, 5, 4800, 5460, 10, 67, "4.9+"},
          Range{FM::STD_5800, 6, 5725, 5851, 6, 22, "5.8"},
          Range{FM::EXT_5800, 7, 5470, 6100, 10, 64, "5.8+"},
          Range{FM::CUSTOM, -1, 0, 0, 0, 0, "Заданный"}}) {
        const FreqMode mode(range.mode);
        SCOPED_TRACE(mode.name());
        EXPECT_EQ(mode.getVisibleIndex(), range.visibleIndex);
        EXPECT_EQ(mode.getMinFreq(), range.minFreq);
        EXPECT_EQ(mode.getMaxFreq(), range.maxFreq);
        EXPECT_EQ(mode.getViewName(), range.viewName);
        const std::vector<float> plan = mode.getFreqList()->getFreqs();
        ASSERT_EQ(plan.size(), range.points);
        for (std::size_t i = 0; i < plan.size(); ++i)
            EXPECT_EQ(plan[i], range.minFreq + static_cast<float>(i) * range.step);
        EXPECT_EQ(plan.empty() ? 0 : plan.back(), range.maxFreq);
    }
}

TEST(Enumerations, BandsAndGenerationsKnowTheirParts) {
    using FM = FreqModeEnum;
    using MM = MasterFreqModeEnum;
    const auto expectBand = [](MM band, const char *viewName, FM standard, FM extended) {
        EXPECT_EQ(MasterFreqMode(band).getViewName(), viewName);
        EXPECT_EQ(MasterFreqMode(band).getMaxRangeFreqMode(), extended);
        EXPECT_THAT(MasterFreqMode(band).getModes(), ElementsAre(standard, extended));
    };
    expectBand(MM::R_1200, "1.2ГГц", FM::STD_1200, FM::EXT_1200);
    expectBand(MM::R_2400, "2.4ГГц", FM::STD_2400, FM::EXT_2400);
    expectBand(MM::R_4900, "4.9ГГц", FM::STD_4900, FM::EXT_4900);
    expectBand(MM::R_5800, "5.8ГГц", FM::STD_5800, FM::EXT_5800);

    const std::string desc[] = {"Kelvane v1-5 (2.4 4.9 5.8)",
                                "Kelvane v6 (2.4 4.9 5.8) + AI_priors + SDR_MODE",
                                "Kelvane v7-... (1.2 2.4 4.9 5.8) + AI_priors + SDR_MODE + ...",
                                "Kelvane v7-... (1.2 2.4 4.9 5.8) + AI_priors + SDR_MODE + EW + ..."};
    for (const Proto proto : Proto::values()) {
        SCOPED_TRACE(proto.name());
        std::vector<MM> bands = MasterFreqMode::values();
        std::vector<FM> ranges = FreqMode::values();
        ranges.pop_back(); // CUSTOM belongs to no generation
        if (proto.getValue() < ProtoEnum::K7) {
            bands.erase(bands.begin());
            ranges.erase(ranges.begin(), ranges.begin() + 2);
        }
        EXPECT_EQ(proto.getMasterModes(), bands);
        EXPECT_EQ(proto.getFreqModes(), ranges);
        EXPECT_EQ(proto.getDesc(), desc[proto.ordinal()]);
        if (proto.getValue() == ProtoEnum::K1)
            EXPECT_THAT(proto.getAiPriors(), IsEmpty());
        else
            EXPECT_THAT(proto.getAiPriors(),
                        ElementsAre(AiPriorEnum::DEFAULT, AiPriorEnum::FIELD, AiPriorEnum::CITY));
    }
}
