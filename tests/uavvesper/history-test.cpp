#include "common/history.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A scan of one result per frequency (MHz), all at one level (dB).
History::Scan scanOf(const std::vector<float> &freqs, float rssi) {
    History::Scan scan;
    for (const float freq : freqs)
        scan.push_back(std::make_shared<FreqScanResult>(
            FreqScanResultBuilder().freqMHz(freq).rssi(rssi).type(SigTypeEnum::DIG).build()));
    return scan;
}

std::vector<float> levelsOf(const History &history) {
    std::vector<float> levels;
    for (const auto &row : history.getHistoryLevels())
        levels.push_back(row.at(0).rssi);
    return levels;
}

} // namespace

TEST(History, KeepsTheNewestScansOldestFirst) {
    History history(MasterFreqModeEnum::R_4900, 3);
    for (const float rssi : {-101.0f, -102.0f, -103.0f, -104.0f})
        history.acceptScan(scanOf({4900, 4910}, rssi));

    EXPECT_THAT(levelsOf(history), ElementsAre(-102, -103, -104));
    EXPECT_THAT(history.getHistoryFreqs(), ElementsAre(4900, 4910));
    EXPECT_EQ(history.getFreqScanResults().at(1)->getRssi(), -104);
    std::int64_t lastTime = 0;
    for (const auto &row : history.getHistoryLevels()) {
        ASSERT_EQ(row.size(), 2u);
        EXPECT_EQ(row[0].timeMsg, row[1].timeMsg);
        EXPECT_GE(row[0].timeMsg, lastTime);
        EXPECT_EQ(row[1].sigType, SigTypeEnum::DIG);
        lastTime = row[0].timeMsg;
    }

    history.setHistoryLen(1);
    EXPECT_THAT(levelsOf(history), ElementsAre(-104));
}

TEST(History, DefaultsToTenRowsAndANegativeLengthKeepsAll) {
    History history;
    History endless(-1);
    for (int i = 0; i < 12; ++i) {
        history.acceptScan(scanOf({2400}, -90));
        endless.acceptScan(scanOf({2400}, -90));
    }
    EXPECT_EQ(history.getSize(), 10);
    EXPECT_EQ(endless.getSize(), 12);
}

TEST(History, TellsColumnsApartByTheirCountAlone) {
    History history;
    history.acceptScan(scanOf({1000, 1010}, -90));
    history.acceptScan(scanOf({5000, 5010}, -91));
    EXPECT_EQ(history.getSize(), 2);
    EXPECT_THAT(history.getHistoryFreqs(), ElementsAre(1000, 1010));

    history.acceptScan(scanOf({5000, 5010, 5020}, -92));
    EXPECT_THAT(levelsOf(history), ElementsAre(-92));
    EXPECT_THAT(history.getHistoryFreqs(), ElementsAre(5000, 5010, 5020));

    history.clear();
    history.acceptScan(scanOf({1, 2, 3}, -93));
    EXPECT_THAT(levelsOf(history), ElementsAre(-93));
    EXPECT_THAT(history.getHistoryFreqs(), ElementsAre(5000, 5010, 5020));
}

TEST(History, FilesEmptyScansAsEmptyRows) {
    History history;
    history.acceptScan(scanOf({1000, 1010}, -90));
    history.acceptScan({});
    history.acceptScan({});
    EXPECT_THAT(history.getHistoryLevels(), ElementsAre(IsEmpty(), IsEmpty()));
    EXPECT_THAT(history.getHistoryFreqs(), IsEmpty());
    EXPECT_THAT(history.getFreqScanResults(), IsEmpty());
}
