#include "common/history-list-model.h"

#include "msg/config-msg.h"
#include "msg/scan-result-msg.h"
#include "signal-recorder.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

MsgHolder configOf(ProtoEnum proto) {
    return MsgHolder(std::make_shared<ConfigMsg>(ConfigMsgBuilder().proto(proto).build()));
}

MsgHolder scanOf(const std::vector<float> &freqs) {
    std::vector<std::shared_ptr<FreqScanResult>> results;
    for (const float freq : freqs)
        results.push_back(
            std::make_shared<FreqScanResult>(FreqScanResultBuilder().freqMHz(freq).rssi(-90).build()));
    return MsgHolder(std::make_shared<ScanResultMsg>(ScanResultMsgBuilder().freqs(results).build()));
}

} // namespace

TEST(HistoryListModel, HasARowForEachBandOfTheGeneration) {
    HistoryListModel model;
    SignalRecorder recorder(&model);
    model.setConfig(configOf(ProtoEnum::K6));
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_THAT(recorder.take(), ElementsAre("gotHistory"));

    EXPECT_EQ(model.roleNames().value(256), "masterMode");
    EXPECT_EQ(model.roleNames().value(257), "history");
    EXPECT_EQ(model.data(model.index(0), 256), static_cast<int>(MasterFreqModeEnum::R_2400));
    const auto history = model.data(model.index(2), 257).value<History>();
    EXPECT_EQ(history.getMasterMode(), MasterFreqModeEnum::R_5800);
    EXPECT_EQ(history.getSize(), 0);
    EXPECT_FALSE(model.data(model.index(0), 255).isValid());
    EXPECT_FALSE(model.data(model.index(-1), 256).isValid());
    EXPECT_THROW(model.getHistory(3), std::out_of_range);
    EXPECT_THROW(model.getHistory(-1), std::out_of_range);
}

TEST(HistoryListModel, StartsAnewWithEachConfig) {
    HistoryListModel model;
    model.setConfig(configOf(ProtoEnum::K7));
    model.acceptScanResult(scanOf({2400}));
    QSignalSpy reset(&model, &HistoryListModel::modelReset);
    model.setConfig(configOf(ProtoEnum::K7));
    EXPECT_EQ(reset.count(), 1);
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(model.getHistory(1).getSize(), 0);
}

TEST(HistoryListModel, DividesAScanByBand) {
    HistoryListModel model;
    model.setConfig(configOf(ProtoEnum::K6));
    SignalRecorder recorder(&model);
    model.acceptScanResult(scanOf({2349, 2350, 2550, 2551, 5465, 5470, 6100}));
    EXPECT_THAT(recorder.take(), ElementsAre("gotHistory"));
    EXPECT_THAT(model.getHistory(0).getHistoryFreqs(), ElementsAre(2350, 2550));
    EXPECT_THAT(model.getHistory(1).getHistoryLevels(), ElementsAre(IsEmpty())) << "a band without results";
    EXPECT_THAT(model.getHistory(2).getHistoryFreqs(), ElementsAre(5470, 6100));

    model.acceptScanResult(scanOf({}));
    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_EQ(model.getHistory(0).getSize(), 1);
}

TEST(HistoryListModel, IgnoresMessagesOfOtherTypes) {
    HistoryListModel model;
    SignalRecorder recorder(&model);
    model.setConfig(MsgHolder());
    model.setConfig(scanOf({2400}));
    model.acceptScanResult(MsgHolder());
    model.acceptScanResult(configOf(ProtoEnum::K6));
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_THAT(recorder.take(), IsEmpty());

    model.acceptScanResult(scanOf({2400}));
    EXPECT_THAT(recorder.take(), ElementsAre("gotHistory")) << "a scan before the first CONFIG";
}
