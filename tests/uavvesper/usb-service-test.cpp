#include "usb-service.h"

#include "msg/all-messages.h"
#include "signal-recorder.h"

#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

using std::chrono::milliseconds;
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

/// Notes each request as "TYPE time-out" and replies as told, by the type of the request.
class FakeConnector : public SerialInterfaceConnector {
public:
    bool connectInterface() override { return true; }
    void disconnect() override { notes.push_back("disconnect"); }
    void startTesting() override { testing = true; }
    void stopTesting() override { testing = false; }
    bool isTesting() override { return testing; }
    void addListener(std::shared_ptr<MsgListener>) override { notes.push_back("listen"); }
    void removeListener(std::shared_ptr<MsgListener>) override { notes.push_back("unlisten"); }
    std::shared_ptr<Msg> simpleTransaction(std::shared_ptr<Msg> msg, milliseconds timeout) override {
        notes.push_back(MsgType(msg->getType()).name() + " " + std::to_string(timeout.count()));
        return replies[msg->getType()];
    }
    std::vector<std::string> takeNotes() { return std::exchange(notes, {}); }

    std::map<MsgTypeEnum, std::shared_ptr<Msg>> replies;

private:
    bool testing = false;
    std::vector<std::string> notes;
};

class UsbServiceRequests : public testing::Test {
protected:
    std::unique_ptr<SerialInterfaceConnector> owned = std::make_unique<FakeConnector>();
    FakeConnector &connector = static_cast<FakeConnector &>(*owned);
    UsbService service{std::move(owned)};
    QSignalSpy toasts{&service, &UsbService::toast};
    const std::shared_ptr<Msg> ok = std::make_shared<OkMsg>();
    const std::shared_ptr<Msg> fail = std::make_shared<FailMsg>(FailMsgBuilder().failMsg("busy").build());
};

class UsbServiceSignals : public testing::Test {
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

TEST_F(UsbServiceSignals, NamesTheStrongestSignalsOfAScan) {
    EXPECT_THAT(strongest({{-100}, {-90}, {-95}, {-80}}), ElementsAre(-80, -90, -95));
    EXPECT_THAT(strongest({{-100}, {-95}, {-90}, {-85}, {-80}}), ElementsAre(-80, -85, -90));
    // What is not stronger than all of a list with room left is not appended.
    EXPECT_THAT(strongest({{-80}, {-90}, {-95}}), ElementsAre(-80));
    EXPECT_THAT(strongest({{-80}, {-80}}), ElementsAre(-80));
    EXPECT_THAT(strongest({{-105}, {-110}, {-80, SigTypeEnum::NONE}}), IsEmpty());
    EXPECT_THAT(strongest({{-104.5F}, {-90, SigTypeEnum::NONE}}), ElementsAre(-104.5F));
}

TEST_F(UsbServiceSignals, EachTypeHasItsSignals) {
    SignalRecorder recorder(&service);
    QSignalSpy battery(&service, &UsbService::gotBatteryState), mask(&service, &UsbService::gotMask);
    for (const auto &msg :
         std::vector<std::shared_ptr<Msg>>{nullptr, std::make_shared<OkMsg>(), std::make_shared<ConfigMsg>(),
                                           std::make_shared<AiPriorMsg>(), std::make_shared<ConfigK7Msg>(),
                                           std::make_shared<StateMsg>(StateMsgBuilder().battLvl(87).build())})
        service.acceptMsg(msg);
    EXPECT_EQ(recorder.take(), "gotConfig gotAiPrior gotConfigK7 gotBatteryState");
    EXPECT_EQ(battery.value(0).value(0).toInt(), 87);
    service.acceptMsg(scanOf({}));
    EXPECT_EQ(recorder.take(), "gotScanResult gotMask") << "a scan without frequencies tells of the mask";
    EXPECT_TRUE(mask.value(0).value(0).toBool());
    service.acceptMsg(scanOf({{-90}}));
    EXPECT_EQ(recorder.take(), "gotScanResult gotMask gotMaxFreqs");
}

TEST_F(UsbServiceRequests, AConnectionBeginsAndEndsInOrder) {
    const QObject receiver;
    int states = 0, configs = 0; // counted on this thread, wherever the signal is emitted
    QObject::connect(
        &service, &UsbService::usbStateChanged, &receiver, [&] { ++states; });
    QObject::connect(&service, &UsbService::gotConfig, &receiver, [&] { ++configs; });
    connector.replies[MsgTypeEnum::GET_CONFIG] = std::make_shared<ConfigMsg>();
    service.startUsb();
    ASSERT_TRUE(QTest::qWaitFor([&] { return states == 1; }, 20000));
    EXPECT_TRUE(service.isUsbActive());
    EXPECT_FALSE(service.isBusy());
    EXPECT_EQ(configs, 1);
    EXPECT_THAT(connector.takeNotes(), ElementsAre("GET_CONFIG 1000", "listen", "SCAN 200", "GET_STATE 100",
                                                   "GET_AI_PRIOR 100", "GET_CONFIG_K7 100"));
    service.disconnect();
    EXPECT_FALSE(service.isUsbActive());
    EXPECT_TRUE(service.isBusy());
    EXPECT_EQ(states, 2);
    EXPECT_THAT(connector.takeNotes(), ElementsAre("SCAN 200", "disconnect", "unlisten"));
}

TEST_F(UsbServiceRequests, AHolderIsSentOnlyToTheSlotOfItsType) {
    const MsgHolder config(std::make_shared<ConfigMsg>()), aiPrior(std::make_shared<AiPriorMsg>()),
        configK7(std::make_shared<ConfigK7Msg>());
    for (const auto &holder : {MsgHolder(), config, aiPrior, configK7}) {
        service.sendConfig(holder);
        service.sendAiPrior(holder);
        service.sendConfigK7(holder);
    }
    EXPECT_THAT(connector.takeNotes(), ElementsAre("CONFIG 100", "AI_PRIOR 30", "CONFIG_K7 30"));
}

TEST_F(UsbServiceRequests, TheMaskIsTheDevicesAnswer) {
    const auto maskResult = [](bool mask) {
        return std::make_shared<MaskResultMsg>(MaskResultMsgBuilder().mask(mask).build());
    };
    const std::vector<std::pair<std::shared_ptr<Msg>, bool>> replies = {
        {nullptr, false}, {ok, false}, {maskResult(false), false}, {maskResult(true), true}, {fail, false}};
    for (const auto &[reply, result] : replies) {
        connector.replies[MsgTypeEnum::SET_MASK] = reply;
        EXPECT_EQ(service.setMask(), result);
    }
    EXPECT_EQ(connector.takeNotes(), std::vector<std::string>(5, "SET_MASK 5"));
    ASSERT_EQ(toasts.count(), 1);
    EXPECT_EQ(toasts.value(0).value(0).toString(), "Не удалось установить маску: busy");
}

TEST_F(UsbServiceRequests, AFactoryResetReadsBackWhatTheDeviceTook) {
    connector.replies = {{MsgTypeEnum::CONFIG, ok}, {MsgTypeEnum::CONFIG_K7, fail}};
    service.resetToDefaults(static_cast<int>(ProtoEnum::K7)); // AI_PRIOR is not answered
    EXPECT_THAT(connector.takeNotes(),
                ElementsAre("CONFIG 5", "GET_CONFIG 100", "CONFIG_K7 5", "AI_PRIOR 5", "GET_CONFIG 100"));
    ASSERT_EQ(toasts.count(), 1);
    EXPECT_EQ(toasts.value(0).value(0).toString(), "Ошибка: busy");
    for (const auto type : {MsgTypeEnum::CONFIG_K7, MsgTypeEnum::CONFIG_EW, MsgTypeEnum::AI_PRIOR})
        connector.replies[type] = ok;
    service.resetToDefaults(static_cast<int>(ProtoEnum::K7EW));
    EXPECT_THAT(connector.takeNotes(),
                ElementsAre("CONFIG 5", "GET_CONFIG 100", "CONFIG_K7 5", "GET_CONFIG_K7 100", "CONFIG_EW 5",
                            "GET_CONFIG_EW 100", "AI_PRIOR 5", "GET_AI_PRIOR 100", "GET_CONFIG 100"));
}

TEST_F(UsbServiceRequests, TestModeStartsOnlyWithoutADevice) {
    service.startUsb();
    service.startTesting(); // the attempt ends first, and it finds the device
    EXPECT_TRUE(service.isUsbActive());
    EXPECT_FALSE(service.inTesting());
    service.disconnect();
    service.startTesting();
    EXPECT_TRUE(service.inTesting());
}
