#include "common/history-list-model.h"

#include "messages.h"
#include "scans.h"
#include "signal-recorder.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

static MsgHolder k6Config() {
    return held(R"({"type":"CONFIG","proto":"K6"})");
}

static MsgHolder scanAt(const std::vector<Found> &freqs) {
    return MsgHolder(scanOf(freqs));
}

TEST(HistoryListModel, LaysOutTheBandsAnewWithEachConfig) {
    HistoryListModel model;
    SignalRecorder recorder(&model);
    QSignalSpy resets(&model, &HistoryListModel::modelReset);
    model.acceptScanResult(scanAt({{2400}}));
    model.setConfig(k6Config());
    model.acceptScanResult(scanAt({{2400}}));
    model.setConfig(k6Config());
    EXPECT_EQ(recorder.take(), "gotHistory gotHistory gotHistory gotHistory");
    model.setConfig(scanAt({{2400}}));
    model.setConfig(MsgHolder());
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(resets.count(), 2);

    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.data(model.index(0), model.roleNames().key("masterMode")), 1);
    const auto history = model.data(model.index(2), model.roleNames().key("history")).value<History>();
    EXPECT_EQ(history.getMasterMode(), MasterFreqModeEnum::R_5800);
    EXPECT_EQ(model.getHistory(0).getSize(), 0);
    EXPECT_FALSE(model.data(model.index(-1), 256).isValid());
    EXPECT_THROW(model.getHistory(3), std::out_of_range);
}

TEST(HistoryListModel, DividesAScanByBand) {
    HistoryListModel model;
    model.setConfig(k6Config());
    SignalRecorder recorder(&model);
    model.acceptScanResult(scanAt({{2349}, {2350}, {2550}, {2551}, {5465}, {5470}, {6100}}));
    EXPECT_EQ(recorder.take(), "gotHistory");
    EXPECT_THAT(model.getHistory(0).getHistoryFreqs(), ElementsAre(2350, 2550));
    EXPECT_THAT(model.getHistory(1).getHistoryLevels(), ElementsAre(IsEmpty())) << "a band without results";
    EXPECT_THAT(model.getHistory(2).getHistoryFreqs(), ElementsAre(5470, 6100));
    for (const MsgHolder &nothing : {scanAt({}), k6Config(), MsgHolder()})
        model.acceptScanResult(nothing);
    EXPECT_EQ(recorder.take(), "");
}
