#include "common/history-list-model.h"

#include "models.h"

TEST(HistoryListModel, DividesScansByBandAndStartsAnewWithEachConfig) {
    const MsgHolder config = held(R"({"type":"CONFIG","proto":"K6"})");
    const MsgHolder scan(scanOf({{2349}, {2350}, {2550}, {2551}, {5465}, {5470}, {6100}}));
    HistoryListModel model;
    SignalRecorder recorder(&model);
    QSignalSpy resets(&model, &HistoryListModel::modelReset);
    for (int times = 1; times < 3; ++times) {
        model.setConfig(config);
        ASSERT_EQ(model.rowCount(), 3);
        EXPECT_EQ(model.getHistory(0).getSize(), 0) << "forgotten";
        model.acceptScanResult(scan);
        EXPECT_EQ(recorder.take(), "gotHistory gotHistory");
        EXPECT_EQ(resets.count(), times);
        EXPECT_THAT(model.getHistory(0).getHistoryFreqs(), ElementsAre(2350, 2550));
        EXPECT_THAT(model.getHistory(1).getHistoryLevels(), ElementsAre(IsEmpty()))
            << "a band without results";
        EXPECT_THAT(model.getHistory(2).getHistoryFreqs(), ElementsAre(5470, 6100));
    }
    for (const MsgHolder &nothing : {MsgHolder(scanOf({})), config, MsgHolder()})
        model.acceptScanResult(nothing);
    model.setConfig(scan);
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(model.data(model.index(0), model.roleNames().key("masterMode")), 1);
    const auto history = model.data(model.index(2), model.roleNames().key("history")).value<History>();
    EXPECT_EQ(history.getMasterMode(), MasterFreqModeEnum::R_5800);
    EXPECT_FALSE(model.data(model.index(-1), 256).isValid());
    EXPECT_THROW(model.getHistory(3), std::out_of_range);
}
