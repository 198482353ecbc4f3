#include "usb-interface.h"

#include "inbox.h"
#include "usb-bus.h"

class UsbInterfaceThreads : public testing::Test {
protected:
    UsbBus usb;
    Inbox inbox;
};

TEST_F(UsbInterfaceThreads, TakesTheDeviceFromTheKernelAndGivesItBack) {
    const std::string opening = "open 6790 65036|", taking = "detach 0 0|claim 0 0|claim 1 0|";
    {
        UsbInterface link;
        EXPECT_FALSE(link.openDevice()) << "before its time";
        usb.initCode = LIBUSB_ERROR_OTHER;
        EXPECT_EQ(printedBy([&] { EXPECT_FALSE(link.init()); }), "usbinit error: other\n");
        usb.initCode = 0;
        EXPECT_EQ(printedBy([&] { EXPECT_TRUE(link.init()); }), "usbinit successful\n");
        usb.hasDevice = false;
        EXPECT_EQ(printedBy([&] { EXPECT_FALSE(link.openDevice()); }), "Error finding USB device\n");
        EXPECT_EQ(usb.takeCalls(), opening);
        usb.hasDevice = true;
        usb.deniedInterface = 1;
        EXPECT_EQ(printedBy([&] { EXPECT_FALSE(link.openDevice()); }), "Device connected\n");
        EXPECT_EQ(usb.takeCalls(), opening + taking + "close 0 0|");
        EXPECT_FALSE(link.isClosed()) << "the reverse of its name";
        usb.deniedInterface = -1;
        EXPECT_TRUE(link.openDevice() && link.isClosed());
        EXPECT_EQ(usb.takeCalls(), opening + taking);
        link.serialClose();
        link.serialClose();
        EXPECT_EQ(usb.takeCalls(), "close 0 0|");
        EXPECT_TRUE(link.openDevice());
        usb.takeCalls();
    }
    EXPECT_EQ(usb.takeCalls(), "close 0 0|exit 0 0|");
    UsbInterface link;
    const char *texts[] = {
        "successful",         "error: IO",     "error: invalid param", "error: access",   "error: no device",
        "error: not found",   "error: busy",   "error: timeout",       "error: overflow", "error: pipe",
        "error: interrupted", "error: no mem", "error: not supported", "error: unknown"};
    for (int code = 0; code < 14; ++code)
        EXPECT_EQ(printedBy([&] { link.printResult(-code); }), std::string(texts[code]) + "\n");
}

TEST_F(UsbInterfaceThreads, SendsBlocksOfWhichEachGetsThroughWhole) {
    UsbInterface link;
    EXPECT_THROW(link.sendBytes("x", 5ms), std::runtime_error) << "no device";
    link.init();
    link.openDevice();
    usb.takeCalls();
    const std::string bytes = std::string(512, 'a') + "b";
    link.sendBytes(bytes, 30ms);
    EXPECT_EQ(usb.takeCalls(), "send 512 30|send 1 30|");
    EXPECT_EQ(usb.outgoing, bytes);
    usb.mostBytes = 511;
    EXPECT_THROW(link.sendBytes(bytes, 30ms), std::runtime_error);
    EXPECT_EQ(usb.takeCalls(), "send 512 30|") << "nothing follows a block that went out in part";
    usb.mostBytes = 512;
    usb.sendCode = LIBUSB_ERROR_TIMEOUT;
    EXPECT_THROW(link.sendBytes("x", 30ms), std::runtime_error);
}

TEST_F(UsbInterfaceThreads, ReadsOnAfterErrorsUntilItIsClosed) {
    UsbInterface link;
    link.addListener(inbox.listener);
    link.init();
    link.startReading(); // of nothing
    for (int run = 0; run < 2; ++run) {
        link.openDevice();
        usb.bring({{"{", LIBUSB_ERROR_IO},
                   {"", LIBUSB_ERROR_PIPE},
                   {STATE.substr(0, 5), LIBUSB_ERROR_TIMEOUT},
                   {STATE.substr(5) + "\n"}});
        const auto start = std::chrono::steady_clock::now();
        link.startReading();
        link.startReading();
        EXPECT_NE(inbox.next<StateMsg>(), nullptr);
        EXPECT_GE(std::chrono::steady_clock::now() - start, 100ms) << "spins on errors";
        link.serialClose();
        if (run == 1)
            link.stopReading();
        EXPECT_TRUE(inbox.take().empty());
    }
    EXPECT_THAT(usb.readSizes, ElementsAre(std::pair(512, 100U)));
}

TEST_F(UsbInterfaceThreads, AnyThreadMayAskForTheDeviceOrSend) {
    UsbInterface link;
    link.init();
    const auto open = [&] { link.openDevice(); };
    const auto ask = [&] { link.isClosed(); };
    inOrder(open, ask);
    inOrder([&] { link.serialClose(); }, ask);
    inOrder(open, [&] { link.sendBytes("x", 5ms); });
}
