#include "usb-service.h"

#include "models.h"
#include "pty-device.h"

#include <QTest>

/// Notes what it is asked for, each request as "TYPE time-out", and replies as told, by the type of the
/// request.
class FakeConnector : public SerialInterfaceConnector {
public:
    bool connectInterface() override {
        note("connect");
        return hasDevice;
    }
    void disconnect() override {
        note("disconnect");
        testing = false;
    }
    void startTesting() override { testing = true; }
    void stopTesting() override { testing = false; }
    bool isTesting() override { return testing; }
    void addListener(std::shared_ptr<MsgListener>) override { note("listen"); }
    void removeListener(std::shared_ptr<MsgListener>) override { note("unlisten"); }
    std::shared_ptr<Msg> simpleTransaction(std::shared_ptr<Msg> msg,
                                           std::chrono::milliseconds timeout) override {
        EXPECT_TRUE(isBusy());
        note(MsgType(msg->getType()).name() + " " + std::to_string(timeout.count()));
        return replies[msg->getType()];
    }

    std::string take() { return std::exchange(notes, {}); }

    bool hasDevice = true;
    std::map<MsgTypeEnum, std::shared_ptr<Msg>> replies;

private:
    void note(const std::string &text) { notes += (notes.empty() ? "" : ", ") + text; }

    std::atomic<bool> testing{false};
    std::string notes; // by one thread at a time: the service waits for its attempts
};

const std::string FIRST_REQUESTS =
    "GET_CONFIG 1000, listen, SCAN 200, GET_STATE 100, GET_AI_PRIOR 100, GET_CONFIG_K7 100";
const std::string CONNECTING = "connect, " + FIRST_REQUESTS;
const std::string DISCONNECTING = "SCAN 200, disconnect, unlisten";

class UsbServiceThreads : public testing::Test {
protected:
    std::unique_ptr<SerialInterfaceConnector> owned = std::make_unique<FakeConnector>();
    FakeConnector &line = static_cast<FakeConnector &>(*owned);
    UsbService service{std::move(owned)};
    SignalRecorder recorder{&service}; // on this thread, wherever a signal is emitted
    QSignalSpy toasts{&service, &UsbService::toast};
    const std::shared_ptr<Msg> ok = std::make_shared<OkMsg>();
    const std::shared_ptr<Msg> fail = FailMsgBuilder().failMsg("busy").share();
};

TEST_F(UsbServiceThreads, AConnectionBeginsAndEndsInOrder) {
    line.replies[MsgTypeEnum::GET_CONFIG] = std::make_shared<ConfigMsg>();
    service.startUsb();
    service.startTesting(); // waits for the attempt, which finds the device
    QCoreApplication::processEvents();
    EXPECT_EQ(recorder.take(), "gotConfig busyChanged usbStateChanged");
    EXPECT_TRUE(service.isUsbActive() && !service.isBusy() && !service.inTesting());
    EXPECT_EQ(line.take(), CONNECTING);
    service.disconnect();
    EXPECT_EQ(recorder.take(), "busyChanged usbStateChanged");
    EXPECT_TRUE(!service.isUsbActive() && service.isBusy());
    EXPECT_EQ(line.take(), DISCONNECTING);

    line.hasDevice = false;
    service.startUsb();
    service.disconnect(); // waits for the attempt, too
    QCoreApplication::processEvents();
    EXPECT_EQ(recorder.take(), "busyChanged usbStateChanged busyChanged usbStateChanged");
    EXPECT_EQ(line.take(), "connect, disconnect");
}

TEST_F(UsbServiceThreads, TwoQuickPressesConnectOneAfterTheOther) {
    service.startUsb();
    service.startUsb();
    service.shutDown(); // leaves no device scanning
    EXPECT_EQ(line.take(), CONNECTING + ", " + DISCONNECTING + ", " + CONNECTING + ", " + DISCONNECTING);
}

TEST_F(UsbServiceThreads, TestModeTellsOfItselfFirst) {
    std::vector<bool> told; // what a control sees that asks at the signal
    QObject::connect(
        &service, &UsbService::testingChanged, [&] { told.push_back(service.inTesting()); });
    QObject::connect(&service, &UsbService::usbStateChanged, [&] { told.push_back(service.isUsbActive()); });
    for (const bool testing : {true, false}) {
        testing ? service.startTesting() : service.disconnect();
        EXPECT_THAT(std::exchange(told, {}), ElementsAre(testing, testing));
        EXPECT_EQ(recorder.take(), "testingChanged busyChanged usbStateChanged");
        EXPECT_EQ(line.take(), testing ? FIRST_REQUESTS : DISCONNECTING);
    }
}

TEST_F(UsbServiceThreads, AHolderIsSentOnlyToTheSlotOfItsType) {
    for (const MsgHolder &holder :
         {MsgHolder(), MsgHolder(std::make_shared<ConfigMsg>()), MsgHolder(std::make_shared<AiPriorMsg>()),
          MsgHolder(std::make_shared<ConfigK7Msg>())}) {
        service.sendConfig(holder);
        service.sendAiPrior(holder);
        service.sendConfigK7(holder);
    }
    EXPECT_EQ(line.take(), "CONFIG 100, AI_PRIOR 30, CONFIG_K7 30");
}

TEST_F(UsbServiceThreads, TheMaskIsTheDevicesAnswer) {
    for (const auto &[reply, result] : {std::pair<std::shared_ptr<Msg>, bool>(nullptr, false),
                                        {ok, false},
                                        {MaskResultMsgBuilder().mask(false).share(), false},
                                        {MaskResultMsgBuilder().mask(true).share(), true},
                                        {fail, false}}) {
        line.replies[MsgTypeEnum::SET_MASK] = reply;
        EXPECT_EQ(service.setMask(), result);
        EXPECT_EQ(line.take(), "SET_MASK 5");
    }
    EXPECT_EQ(toasts.value(0).value(0).toString(), "Не удалось установить маску: busy");
}

TEST_F(UsbServiceThreads, AFactoryResetReadsBackWhatTheDeviceTook) {
    line.replies = {{MsgTypeEnum::CONFIG, ok}, {MsgTypeEnum::CONFIG_K7, fail}, {MsgTypeEnum::AI_PRIOR, ok}};
    EXPECT_EQ(printedBy([this] { service.resetToDefaults(static_cast<int>(ProtoEnum::K7EW)); }),
              "[ERROR] [UsbService] Ошибка: busy\n"); // CONFIG_EW is not answered
    EXPECT_EQ(
        line.take(),
        "CONFIG 5, GET_CONFIG 100, CONFIG_K7 5, CONFIG_EW 5, AI_PRIOR 5, GET_AI_PRIOR 100, GET_CONFIG 100");
    EXPECT_EQ(toasts.value(0).value(0).toString(), "Ошибка: busy");
}

TEST_F(UsbServiceThreads, EachTypeOfMessageHasItsSignals) {
    QSignalSpy battery(&service, &UsbService::gotBatteryState), mask(&service, &UsbService::gotMask),
        strongest(&service, &UsbService::gotMaxFreqs);
    const auto weak = scanOf({{1, -105}, {2, -110}});
    const auto strong = scanOf({{1, -104}, {2, -103}, {3, -102}, {4, -101}}, true);
    for (const auto &[msg, names] : {std::pair<std::shared_ptr<Msg>, const char *>(nullptr, ""),
                                     {ok, ""},
                                     {std::make_shared<ConfigMsg>(), "gotConfig"},
                                     {std::make_shared<AiPriorMsg>(), "gotAiPrior"},
                                     {std::make_shared<ConfigK7Msg>(), "gotConfigK7"},
                                     {StateMsgBuilder().battLvl(87).share(), "gotBatteryState"},
                                     {scanOf({}), "gotScanResult gotMask"},
                                     {weak, "gotScanResult gotMask gotMaxFreqs"},
                                     {strong, "gotScanResult gotMask gotMaxFreqs"}}) {
        service.acceptMsg(msg);
        EXPECT_EQ(recorder.take(), names);
    }
    EXPECT_EQ(battery[0][0].toInt(), 87);
    EXPECT_FALSE(mask[1][0].toBool());
    EXPECT_TRUE(mask[2][0].toBool());
    const auto named = [&](int scan) { return strongest[scan][0].value<MsgHolder>().getAs<ScanResultMsg>(); };
    EXPECT_THAT(named(0)->getFreqs(), IsEmpty());
    ASSERT_EQ(named(1)->getFreqs().size(), 3U);
    EXPECT_EQ(named(1)->getFreqs()[2]->getRssi(), -103);
}

TEST(UsbServiceConnectionThreads, TellsWhatHelpsAmongTheErrorsAlone) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    const auto told = [](const char *port) {
        const SerialDirectory directory;
        std::filesystem::create_symlink(port, directory.path() / "usb");
        testing::internal::CaptureStderr();
        const std::string log = printedBy([&] {
            UsbService service(nullptr, directory.path());
            service.startUsb();
        });
        return log + "|" + testing::internal::GetCapturedStderr();
    };
    EXPECT_EQ(told("/dev/null"),
              "Error 25 from tcgetattr: Inappropriate ioctl for device\n|/dev/null: no serial line\n");
    EXPECT_THAT(told("nowhere"), MatchesRegex(".filesystem error: .+nowhere.+\n"));
    qInstallMessageHandler(nullptr);
}

/// On a busy machine an attempt may miss the 100 ms that it has for an answer.
TEST(UsbServiceConnectionThreads, TheServiceAloneEndsAConnection) {
    const SerialDirectory directory;
    PtyDevice device(directory);
    {
        UsbService service(nullptr, directory.path());
        const auto isActive = [&] { return service.isUsbActive(); };
        for (int attempt = 0; attempt < 60 && !QTest::qWaitFor(isActive, 1000 * (attempt > 0)); ++attempt)
            service.startUsb();
        EXPECT_TRUE(service.isUsbActive() && device.isScanning());
    }
    EXPECT_TRUE(device.waitForOpen(false) && !device.isScanning());
}
