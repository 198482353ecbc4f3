#include "simulator/scan-plan.h"

#include "testing.h"

using Band = MasterFreqModeEnum;
using Sweep = FreqModeEnum;

TEST(ScanPlan, FollowsTheSettings) {
    struct Case {
        DetModeEnum mode;
        int atten;
        bool wifiDet, uavDet;
        AiPriorEnum prior;
        int period, rssiMax, wifi, dig, fpv;
    };
    for (const Case &c :
         {Case{DetModeEnum::ECO, 0, true, true, AiPriorEnum::AUTO, 5000, -75, 10, 5, 10},
          Case{DetModeEnum::BASE, 3, true, true, AiPriorEnum::DEFAULT, 1000, -84, 5, 5, 5},
          Case{DetModeEnum::AUTO, 10, true, false, AiPriorEnum::FIELD, 2000, -105, 20, 0, 15},
          Case{DetModeEnum::CONT, 1 << 30, false, true, AiPriorEnum::FIELD, 500, -105, 0, 10, 15},
          Case{DetModeEnum::CONT, 1, true, true, AiPriorEnum::CITY, 500, -78, 5, 10, 10},
          Case{DetModeEnum::CONT, -1, true, true, AiPriorEnum::NONE, 500, -72, 10, 5, 5}}) {
        auto config = ConfigMsgBuilder().mode(c.mode).atten(c.atten).wifiDet(c.wifiDet).uavDet(c.uavDet);
        ScanPlan plan;
        const auto values = [&] {
            return std::vector<std::int64_t>{plan.period.count(), plan.rssiMax, plan.wifi, plan.dig,
                                             plan.fpv};
        };
        plan.setByConfig(config.build());
        EXPECT_THAT(values(), ElementsAre(c.period, c.rssiMax, 0, 0, 0)) << "no range, no signal";
        config = config.ranges({Sweep::STD_2400});
        plan.setByConfig(config.build());
        plan.setByAiPrior(AiPriorEnum::FIELD); // the next mode replaces its factors, and so does a CONFIG
        plan.setByAiPrior(c.prior);
        EXPECT_THAT(values(), ElementsAre(c.period, c.rssiMax, c.wifi, c.dig, c.fpv));
        plan.setByConfig(config.build());
        EXPECT_THAT(values(), ElementsAre(c.period, c.rssiMax, 5 * c.wifiDet, 5 * c.uavDet, 5));
    }
}

TEST(ScanPlan, AMaskedBandStaysMasked) {
    ScanPlan plan;
    const std::vector<std::pair<std::vector<Sweep>, std::vector<Band>>> steps = {
        {{Sweep::STD_5800, Sweep::EXT_2400}, {Band::R_2400, Band::R_5800}},
        {{Sweep::STD_1200, Sweep::STD_2400}, {Band::R_2400, Band::R_5800, Band::R_1200}},
        {{}, {Band::R_2400, Band::R_5800, Band::R_1200}}};
    for (const auto &[ranges, masked] : steps) {
        plan.setByConfig(ConfigMsgBuilder().proto(ProtoEnum::K7).ranges(ranges).build());
        EXPECT_EQ(plan.maskedMMs, masked);
    }
}

TEST(ScanPlan, MakesScansByItsChances) {
    const auto config = ConfigMsgBuilder().proto(ProtoEnum::K7).wifiDet(true).uavDet(true).atten(4);
    ScanPlan plan;
    plan.setByConfig(ConfigMsgBuilder(config).ranges(std::vector(2000, Sweep::STD_2400)).build());
    plan.setByAiPrior(AiPriorEnum::FIELD);
    std::default_random_engine engine(1);
    const auto scan = plan.makeScan(engine);
    EXPECT_THAT(scan->getMaskedModes(), ElementsAre(Band::R_2400));
    EXPECT_EQ(scan->getFreqs().back()->getFreqMHz(), 2484);
    std::map<float, double> levels;
    std::map<SigTypeEnum, double> types;
    for (const auto &result : scan->getFreqs()) {
        levels[result->getRssi()] += 1.0 / 30000;
        types[result->getType()] += 1.0 / 30000;
    }
    // A draw from 0 to 100 hits a chance of n in n of 101 cases. The bounds are four standard deviations
    // wide.
    const double wifi = 20 / 101.0, fpv = (1 - wifi) * 15 / 101.0, dig = (1 - wifi - fpv) * 10 / 101.0;
    EXPECT_NEAR(types[SigTypeEnum::WIFI], wifi, 0.01);
    EXPECT_NEAR(types[SigTypeEnum::FPV], fpv, 0.008);
    EXPECT_NEAR(types[SigTypeEnum::DIG], dig, 0.006);
    EXPECT_EQ(levels.size(), 19U) << "each whole dB";
    EXPECT_EQ(levels.rbegin()->first, -87);
    EXPECT_NEAR(levels[-105], (50 + 51 / 19.0) / 101, 0.012) << "silence";
}
