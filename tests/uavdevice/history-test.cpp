#include "common/history.h"

#include "scans.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

static std::vector<float> levelsOf(const History &history) {
    std::vector<float> levels;
    for (const auto &row : history.getHistoryLevels())
        levels.push_back(row.at(0).rssi);
    return levels;
}

TEST(History, KeepsTheNewestScansOldestFirst) {
    History history(MasterFreqModeEnum::R_4900, 3);
    for (const float rssi : {-101.0f, -102.0f, -103.0f, -104.0f})
        history.acceptScan(resultsOf({{4900, rssi}, {4910, rssi}}));
    EXPECT_THAT(levelsOf(history), ElementsAre(-102, -103, -104));
    EXPECT_EQ(history.getFreqScanResults().at(1)->getRssi(), -104);
    const auto rows = history.getHistoryLevels();
    EXPECT_EQ(rows[2].at(1).timeMsg, rows[2].at(0).timeMsg);
    EXPECT_EQ(rows[2].at(1).sigType, SigTypeEnum::DIG);
    history.setHistoryLen(1);
    EXPECT_THAT(levelsOf(history), ElementsAre(-104));
    history.setHistoryLen(-1);
    history.acceptScan(resultsOf({{4900, -90}, {4910, -90}}));
    EXPECT_EQ(history.getSize(), 2) << "a negative length keeps all";
}

TEST(History, TellsColumnsApartByTheirCountAlone) {
    History history;
    history.acceptScan(resultsOf({{1000, -90}, {1010, -90}}));
    history.acceptScan(resultsOf({{5000, -91}, {5010, -91}}));
    EXPECT_EQ(history.getSize(), 2);
    EXPECT_THAT(history.getHistoryFreqs(), ElementsAre(1000, 1010));
    history.acceptScan(resultsOf({{5000, -92}, {5010, -92}, {5020, -92}}));
    EXPECT_THAT(levelsOf(history), ElementsAre(-92));
    EXPECT_THAT(history.getHistoryFreqs(), ElementsAre(5000, 5010, 5020));
    history.acceptScan({});
    history.acceptScan({});
    EXPECT_THAT(history.getHistoryLevels(), ElementsAre(IsEmpty(), IsEmpty()));
    EXPECT_THAT(history.getHistoryFreqs(), IsEmpty());
}
