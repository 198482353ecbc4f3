#include "common/history.h"

#include "messages.h"

TEST(History, KeepsTheTenNewestScansOldestFirst) {
    History history;
    for (int time = 1; time <= 11; ++time)
        history.acceptScan(resultsOf({{4900, -95}, {4910, -104.0F + time, SigTypeEnum::FPV}}), time);
    const auto rows = history.getHistoryLevels();
    ASSERT_EQ(rows.size(), 10U);
    for (const auto &[row, time] : {std::pair(0U, 2), {9U, 11}})
        for (const auto &point : rows[row])
            EXPECT_EQ(point.timeMsg, time);
    EXPECT_EQ(rows[9][1].rssi, -93);
    EXPECT_EQ(rows[9][1].sigType, SigTypeEnum::FPV);
    EXPECT_EQ(history.getFreqScanResults().at(1)->getRssi(), -93);

    const auto begin = Uptime::getMs();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    history.acceptScan(resultsOf({{4900}, {4910}}));
    EXPECT_GE(history.getHistoryLevels().back().at(0).timeMsg, begin + 20) << "milliseconds";
    EXPECT_LT(history.getHistoryLevels().back().at(0).timeMsg, begin + 20000);
}

TEST(History, TellsColumnsApartByTheirCountAlone) {
    History history(MasterFreqModeEnum::R_4900, 3);
    history.acceptScan(resultsOf({{1000}, {1010}}));
    history.acceptScan(resultsOf({{5000}, {5010}}));
    EXPECT_EQ(history.getSize(), 2);
    EXPECT_THAT(history.getHistoryFreqs(), ElementsAre(1000, 1010));
    history.acceptScan(resultsOf({{5000}, {5010}, {5020}}));
    EXPECT_EQ(history.getSize(), 1);
    EXPECT_THAT(history.getHistoryFreqs(), ElementsAre(5000, 5010, 5020));
    for (int scan = 0; scan < 4; ++scan)
        history.acceptScan({});
    EXPECT_THAT(history.getHistoryLevels(), AllOf(SizeIs(3), Each(IsEmpty())));
    EXPECT_THAT(history.getHistoryFreqs(), IsEmpty());
    EXPECT_EQ(history.getMasterMode(), MasterFreqModeEnum::R_4900);
}
