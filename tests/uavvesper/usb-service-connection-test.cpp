#include "pty-device.h"
#include "usb-service.h"

#include <QTest>
#include <gtest/gtest.h>
#include <sys/resource.h>

using std::chrono::milliseconds;
using Manner = PtyDevice::Manner;

namespace {

/// The service, and counters that run on this thread, wherever a signal is emitted.
class ConnectedService {
public:
    explicit ConnectedService(const SerialDirectory &directory)
        : usb(nullptr, directory.path()) {
        QObject::connect(
            &usb, &UsbService::usbStateChanged, &receiver, [this] { ++states; });
        QObject::connect(&usb, &UsbService::gotScanResult, &receiver, [this] { ++scans; });
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

    int states = 0, scans = 0;
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
