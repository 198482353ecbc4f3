#include "pty-device.h"
#include "usb-service.h"

#include <QTest>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <unistd.h>

using std::chrono::milliseconds;
using testing::ElementsAre;
using Manner = PtyDevice::Manner;

namespace {

/// The service, and counters that run on this thread, wherever a signal is emitted.
class ConnectedService {
public:
    explicit ConnectedService(const SerialDirectory &directory)
        : usb(nullptr, directory.path()) {
        QObject::connect(&usb, &UsbService::usbStateChanged, &receiver, [this] { ++states; });
        QObject::connect(&usb, &UsbService::gotScanResult, &receiver, [this] { ++scans; });
        QObject::connect(&usb, &UsbService::gotConfig, &receiver, [this] { ++configs; });
    }

    /// What the USB button does while not connected; false if no device was found.
    bool press() {
        const int before = states;
        usb.startUsb();
        EXPECT_TRUE(QTest::qWaitFor([&] { return states > before; }, 60000));
        return usb.isUsbActive();
    }
    /// Presses until the device is found: on a busy machine it may miss the 100 ms that it has for an answer.
    /// The device's record holds the last attempt alone.
    bool connectTo(PtyDevice &device) {
        for (int attempt = 0; attempt < 20; ++attempt) {
            device.clearRecord();
            if (press())
                return true;
        }
        return false;
    }
    bool getsScan() {
        const int before = scans;
        return QTest::qWaitFor([&] { return scans > before; }, 20000);
    }

    int states = 0, scans = 0, configs = 0;
    QObject receiver; // takes what is on its way to this object with it
    UsbService usb;
};

class UsbServiceConnection : public testing::Test {
protected:
    SerialDirectory directory;
    PtyDevice device{directory};
    ConnectedService service{directory};
};

} // namespace

// A line feed leaves the link as carriage return and line feed.
TEST_F(UsbServiceConnection, PutsTheseBytesOnTheLine) {
    device.setScanPeriod(milliseconds(0));
    ASSERT_TRUE(service.connectTo(device));
    EXPECT_EQ(device.received(), "{\r\n\"type\" : \"GET_STATE\"\r\n}"
                                 "{\r\n\"type\" : \"GET_CONFIG\"\r\n}"
                                 "{\r\n\"scan\" : true,\r\n\"type\" : \"SCAN\"\r\n}"
                                 "{\r\n\"type\" : \"GET_STATE\"\r\n}"
                                 "{\r\n\"type\" : \"GET_AI_PRIOR\"\r\n}"
                                 "{\r\n\"type\" : \"GET_CONFIG_K7\"\r\n}");
    EXPECT_TRUE(device.isScanning());
    device.clearRecord();
    service.usb.disconnect();
    EXPECT_TRUE(device.waitForOpen(false));
    EXPECT_EQ(device.received(), "{\r\n\"scan\" : false,\r\n\"type\" : \"SCAN\"\r\n}");
    EXPECT_FALSE(device.isScanning());
}

TEST_F(UsbServiceConnection, FindsTheDeviceBesideOthers) {
    PtyDevice silent(directory, ProtoEnum::K7, "usb-a-silent"),
        other(directory, ProtoEnum::K7, "usb-z-silent");
    silent.setManner(Manner::SILENT);
    other.setManner(Manner::SILENT);
    std::filesystem::create_symlink("nowhere", directory.path() / "usb-dead");
    std::filesystem::create_symlink(directory.path(), directory.path() / "usb-no-terminal");
    std::ofstream(directory.path() / "no-link") << "text";
    ASSERT_TRUE(service.connectTo(device));
    EXPECT_TRUE(service.getsScan());
    EXPECT_EQ(device.requestTypes().size(), 6U);
}

TEST_F(UsbServiceConnection, PassesOverADeviceThatDoesNotAnswerInTime) {
    device.setManner(Manner::SILENT);
    EXPECT_FALSE(service.press());
    device.setManner(Manner::OBLIGING);
    device.setAnswerDelay(milliseconds(300));
    EXPECT_FALSE(service.press());
    device.setAnswerDelay(milliseconds(0));
    ASSERT_TRUE(service.connectTo(device));
    EXPECT_EQ(service.configs, 1);
}

// A message cut in half swallows what follows, also on the port opened anew, until five seconds have passed.
TEST_F(UsbServiceConnection, RecoversFromACutMessage) {
    device.setManner(Manner::CUT);
    EXPECT_FALSE(service.press());
    device.setManner(Manner::OBLIGING);
    QTest::qWait(5100);
    EXPECT_FALSE(service.press());
    ASSERT_TRUE(service.connectTo(device));
    EXPECT_TRUE(service.getsScan());
}

TEST_F(UsbServiceConnection, TakesADeviceThatStreamsAfterAnotherPress) {
    device.setScanPeriod(milliseconds(10));
    device.startStreaming();
    service.press(); // a scan comes before the answer more often than not
    service.usb.disconnect();
    device.setScanPeriod(milliseconds(0));
    ASSERT_TRUE(service.connectTo(device));
}

TEST_F(UsbServiceConnection, AFactoryResetReachesEverySettingOfTheGeneration) {
    PtyDevice ew(directory, ProtoEnum::K7EW, "usb-ew");
    device.unplug();
    ew.setScanPeriod(milliseconds(0));
    ASSERT_TRUE(service.connectTo(ew));
    ew.clearRecord();
    service.usb.resetToDefaults(static_cast<int>(ProtoEnum::K7EW));
    std::vector<std::string> settings; // which of them are read back depends on how fast they are answered
    for (const std::string &type : ew.requestTypes()) {
        if (type.rfind("GET_", 0) != 0)
            settings.push_back(type);
    }
    EXPECT_THAT(settings, ElementsAre("CONFIG", "CONFIG_K7", "CONFIG_EW", "AI_PRIOR"));
    EXPECT_EQ(ew.requestTypes().back(), "GET_CONFIG");
    EXPECT_EQ(ew.settingsOf("CONFIG_EW")["targets"][3]["freqMax"].number_value(), 6100);
    EXPECT_EQ(ew.settingsOf("CONFIG_K7")["voiceDbLvl"].int_value(), -97);
}

TEST_F(UsbServiceConnection, LivesWithNoiseAndRefusal) {
    device.setManner(Manner::NOISY);
    ASSERT_TRUE(service.connectTo(device));
    EXPECT_TRUE(service.getsScan());
    device.setManner(Manner::REFUSING);
    EXPECT_FALSE(service.usb.setMask());
    service.usb.resetToDefaults(static_cast<int>(ProtoEnum::K7));
    device.setManner(Manner::OBLIGING);
    for (const char *text : {"[1, 2]\n", "{\"type\" : \"UNKNOWN\"}\n", "{\"type\" : 5}\n", "{}\n",
                             "{\"type\" : \"STATE\", \"battLvl\" : \"full\"}\n",
                             "{\"type\" : \"SCAN_RESULT\", \"freqs\" : 5}\n"})
        device.sendText(text);
    EXPECT_TRUE(service.getsScan());
}

// Unplugging shows only in what does not come; one press ends the connection, the next finds the device
// again.
TEST_F(UsbServiceConnection, SurvivesUnplugging) {
    ASSERT_TRUE(service.connectTo(device));
    device.unplug();
    EXPECT_TRUE(service.usb.isUsbActive());

    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    QTest::qWait(1000);
    getrusage(RUSAGE_SELF, &after);
    const auto processorMs = [](const rusage &usage) {
        return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000 +
               (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000;
    };
    // A loop that spins takes all of that second, whatever the machine.
    EXPECT_LT(processorMs(after) - processorMs(before), 500);

    service.usb.disconnect();
    EXPECT_FALSE(service.usb.isUsbActive());
    device.plugIn();
    ASSERT_TRUE(service.connectTo(device));
    EXPECT_TRUE(service.getsScan());
}

TEST_F(UsbServiceConnection, FindsNothingWhereNothingIs) {
    device.unplug();
    EXPECT_FALSE(service.press()); // an empty directory
    for (const char *missing : {"/nonexistent", "/dev/null"}) {
        UsbService other(nullptr, missing);
        other.startUsb();
        other.shutDown();
        EXPECT_FALSE(other.isUsbActive());
    }
}

// The object ends in every state, and leaves no device scanning.
TEST_F(UsbServiceConnection, ThreadsEndInEveryState) {
    { const ConnectedService idle(directory); }
    {
        ConnectedService connecting(directory);
        connecting.usb.startUsb();
    }
    EXPECT_TRUE(device.waitForOpen(false));
    EXPECT_FALSE(device.isScanning());
    {
        ConnectedService connected(directory);
        ASSERT_TRUE(connected.connectTo(device));
        EXPECT_TRUE(connected.getsScan());
    }
    EXPECT_FALSE(device.isScanning());
    {
        ConnectedService testing(directory);
        testing.usb.startTesting();
        EXPECT_TRUE(testing.getsScan());
    }
}

TEST_F(UsbServiceConnection, ThreadsMeetInRequestsWhileScansStream) {
    device.setScanPeriod(milliseconds(5));
    ASSERT_TRUE(service.connectTo(device));
    std::thread other([this] {
        for (int i = 0; i < 20; ++i)
            service.usb.sendGetState();
    });
    for (int i = 0; i < 20; ++i)
        service.usb.sendGetConfig();
    other.join();
    EXPECT_TRUE(service.getsScan());
    // A new press during an attempt waits for it, and a disconnection does too.
    service.usb.startUsb();
    service.usb.startUsb();
    service.usb.disconnect();
    EXPECT_FALSE(service.usb.isUsbActive());
}
