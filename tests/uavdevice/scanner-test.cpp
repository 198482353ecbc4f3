#include "simulator/scanner.h"

#include "inbox.h"
#include "msg/scan-result-msg.h"
#include "wire-text.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

ConfigMsgBuilder fastConfig() {
    return ConfigMsgBuilder()
        .proto(ProtoEnum::K7)
        .mode(DetModeEnum::CONT)
        .wifiDet(true)
        .uavDet(true)
        .atten(0);
}

/// The scan after the one that may be under way.
std::shared_ptr<ScanResultMsg> freshScan(Inbox &scans) {
    return scans.at<ScanResultMsg>(scans.size() + 1);
}

} // namespace

TEST(ScannerThreads, ScansFollowTheSettingsThatChangeMeanwhile) {
    Inbox scans;
    Scanner scanner(scans.listener);
    scanner.setByConfig(
        share(fastConfig().ranges({FreqModeEnum::EXT_5800, FreqModeEnum::STD_2400}).atten(11)));
    scanner.start();
    scanner.start();

    const auto first = scans.at<ScanResultMsg>(0);
    ASSERT_TRUE(first);
    ASSERT_EQ(first->getFreqs().size(), 64U + 15U);
    EXPECT_EQ(first->getFreqs().front()->getFreqMHz(), 5470.0F) << "in the order of the CONFIG";
    EXPECT_EQ(first->getFreqs().back()->getFreqMHz(), 2484.0F);
    for (const auto &result : first->getFreqs())
        EXPECT_EQ(result->getRssi(), -105.0F);
    EXPECT_FALSE(first->getMask());
    EXPECT_THAT(first->getMaskedModes(), ElementsAre(MasterFreqModeEnum::R_2400, MasterFreqModeEnum::R_5800));

    scanner.setMask();
    scanner.setByConfig(share(fastConfig().ranges({FreqModeEnum::EXT_1200, FreqModeEnum::STD_2400})));
    const auto second = freshScan(scans);
    ASSERT_TRUE(second);
    EXPECT_TRUE(second->getMask());
    EXPECT_EQ(second->getFreqs().size(), 91U + 15U);
    EXPECT_THAT(second->getMaskedModes(), ElementsAre(MasterFreqModeEnum::R_2400, MasterFreqModeEnum::R_5800,
                                                      MasterFreqModeEnum::R_1200));

    scanner.setByConfig(share(fastConfig().ranges({})));
    scanner.setByAiPrior(share(AiPriorMsgBuilder().aiPrior(AiPriorEnum::FIELD)));
    const auto third = freshScan(scans);
    ASSERT_TRUE(third);
    EXPECT_TRUE(third->getFreqs().empty());
}

/// The bounds are six standard deviations wide or more, and narrower than one percent.
TEST(ScannerThreads, SignalClassesAndLevelsFollowTheirChances) {
    struct Case {
        AiPriorEnum prior;
        bool detect;
        int wifi, dig, fpv; // chance in percent
    };
    const std::vector<FreqModeEnum> manyTimes(1000, FreqModeEnum::EXT_1200);
    for (const Case &c :
         {Case{AiPriorEnum::AUTO, true, 10, 5, 10}, Case{AiPriorEnum::DEFAULT, true, 5, 5, 5},
          Case{AiPriorEnum::FIELD, true, 20, 10, 15}, Case{AiPriorEnum::CITY, true, 5, 10, 10},
          Case{AiPriorEnum::NONE, true, 10, 5, 5}, Case{AiPriorEnum::FIELD, false, 0, 0, 15}}) {
        SCOPED_TRACE(AiPrior(c.prior).name());
        Inbox scans;
        Scanner scanner(scans.listener);
        scanner.setByConfig(
            share(fastConfig().ranges(manyTimes).wifiDet(c.detect).uavDet(c.detect).atten(4)));
        // A second prior replaces the factors of the first.
        scanner.setByAiPrior(share(AiPriorMsgBuilder().aiPrior(AiPriorEnum::FIELD)));
        scanner.setByAiPrior(share(AiPriorMsgBuilder().aiPrior(c.prior)));
        scanner.start();
        const auto scan = scans.at<ScanResultMsg>(0);
        ASSERT_TRUE(scan);

        std::map<SigTypeEnum, double> shares;
        double silent = 0;
        float top = -105;
        const double each = 1.0 / static_cast<double>(scan->getFreqs().size());
        for (const auto &result : scan->getFreqs()) {
            shares[result->getType()] += each;
            silent += result->getRssi() == -105.0F ? each : 0;
            top = std::max(top, result->getRssi());
        }
        const double wifi = c.wifi / 101.0;
        const double fpv = (1 - wifi) * c.fpv / 101.0;
        const double dig = (1 - wifi - fpv) * c.dig / 101.0;
        EXPECT_NEAR(shares[SigTypeEnum::WIFI], wifi, c.wifi ? 0.008 : 0);
        EXPECT_NEAR(shares[SigTypeEnum::FPV], fpv, 0.008);
        EXPECT_NEAR(shares[SigTypeEnum::DIG], dig, c.dig ? 0.008 : 0);
        EXPECT_NEAR(silent, 0.495 + 0.505 / 19, 0.01);
        EXPECT_EQ(top, -87.0F);
    }
}
