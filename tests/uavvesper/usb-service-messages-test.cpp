#include "msg/all-messages.h"
#include "usb-service.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Signal {
    float rssi;
    SigTypeEnum type = SigTypeEnum::FPV;
};

std::shared_ptr<Msg> scanOf(const std::vector<Signal> &found) {
    std::vector<std::shared_ptr<FreqScanResult>> freqs;
    for (const auto &signal : found)
        freqs.push_back(std::make_shared<FreqScanResult>(
            FreqScanResultBuilder().freqMHz(2400).rssi(signal.rssi).type(signal.type).build()));
    return std::make_shared<ScanResultMsg>(ScanResultMsgBuilder().freqs(freqs).mask(true).build());
}

class UsbServiceMessages : public testing::Test {
protected:
    /// The levels that `gotMaxFreqs` names for a scan, in order.
    std::vector<float> strongest(const std::vector<Signal> &found) {
        QSignalSpy maxFreqs(&service, &UsbService::gotMaxFreqs);
        service.acceptMsg(scanOf(found));
        EXPECT_EQ(maxFreqs.count(), 1);
        const auto msg =
            maxFreqs.value(0).value(0).value<MsgHolder>().getAs<ScanResultMsg>(MsgTypeEnum::SCAN_RESULT);
        std::vector<float> levels;
        for (const auto &result : msg->getFreqs())
            levels.push_back(result->getRssi());
        return levels;
    }

    UsbService service{nullptr, "/nonexistent"};
};

} // namespace

TEST_F(UsbServiceMessages, NamesTheStrongestSignalsOfAScan) {
    EXPECT_THAT(strongest({{-100}, {-90}, {-95}, {-80}}), ElementsAre(-80, -90, -95));
    EXPECT_THAT(strongest({{-100}, {-95}, {-90}, {-85}, {-80}}), ElementsAre(-80, -85, -90));
    // What is not stronger than all of a list with room left is not appended.
    EXPECT_THAT(strongest({{-80}, {-90}, {-95}}), ElementsAre(-80));
    EXPECT_THAT(strongest({{-80}, {-80}}), ElementsAre(-80));
    EXPECT_THAT(strongest({{-105}, {-110}, {-80, SigTypeEnum::NONE}}), IsEmpty());
    EXPECT_THAT(strongest({{-104.5F}, {-90, SigTypeEnum::NONE}}), ElementsAre(-104.5F));
}

TEST_F(UsbServiceMessages, EachTypeHasItsSignals) {
    QSignalSpy config(&service, &UsbService::gotConfig), scan(&service, &UsbService::gotScanResult),
        battery(&service, &UsbService::gotBatteryState), mask(&service, &UsbService::gotMask),
        aiPrior(&service, &UsbService::gotAiPrior), configK7(&service, &UsbService::gotConfigK7),
        maxFreqs(&service, &UsbService::gotMaxFreqs);
    const auto counts = [&] {
        return std::vector<int>{config.count(),  scan.count(),     battery.count(), mask.count(),
                                aiPrior.count(), configK7.count(), maxFreqs.count()};
    };

    service.acceptMsg(nullptr);
    service.acceptMsg(std::make_shared<OkMsg>());
    service.acceptMsg(std::make_shared<FailMsg>());
    EXPECT_THAT(counts(), ElementsAre(0, 0, 0, 0, 0, 0, 0));

    service.acceptMsg(std::make_shared<ConfigMsg>());
    service.acceptMsg(std::make_shared<AiPriorMsg>());
    service.acceptMsg(std::make_shared<ConfigK7Msg>());
    service.acceptMsg(std::make_shared<StateMsg>(StateMsgBuilder().battLvl(87).build()));
    EXPECT_THAT(counts(), ElementsAre(1, 0, 1, 0, 1, 1, 0));
    EXPECT_EQ(battery.value(0).value(0).toInt(), 87);

    // A scan without frequencies still tells of the mask.
    service.acceptMsg(scanOf({}));
    EXPECT_THAT(counts(), ElementsAre(1, 1, 1, 1, 1, 1, 0));
    EXPECT_TRUE(mask.value(0).value(0).toBool());
    service.acceptMsg(scanOf({{-90}}));
    EXPECT_THAT(counts(), ElementsAre(1, 2, 1, 2, 1, 1, 1));
}
