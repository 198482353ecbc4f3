#include "usb-interface.h"

#include "inbox.h"
#include "msg/state-msg.h"
#include "wire-text.h"

#include <gmock/gmock.h>

using namespace std::chrono_literals;

/// Stands for libusb and a bus with a device on it.
struct Bus {
    struct Block {
        std::string bytes;
        int code = 0;
    };

    std::string take() {
        const std::lock_guard lock(mutex);
        return std::exchange(calls, {});
    }
    void note(const std::string &call, int a, int b) {
        const std::lock_guard lock(mutex);
        calls += call + " " + std::to_string(a) + " " + std::to_string(b) + "|";
    }

    std::mutex mutex; // guards everything below
    std::string calls;
    int initCode = 0, deniedInterface = -1;
    bool hasDevice = true;
    std::deque<Block> incoming;
    std::string outgoing;
    int sendCode = 0;
    std::size_t mostBytes = 512; ///< that go out of a block
};
static Bus *bus = nullptr;

extern "C" {

int libusb_init(libusb_context **context) {
    *context = bus->initCode < 0 ? nullptr : reinterpret_cast<libusb_context *>(bus);
    return bus->initCode;
}
void libusb_exit(libusb_context *) {
    bus->note("exit", 0, 0);
}
libusb_device_handle *libusb_open_device_with_vid_pid(libusb_context *, uint16_t vendor, uint16_t product) {
    bus->note("open", vendor, product);
    return bus->hasDevice ? reinterpret_cast<libusb_device_handle *>(bus) : nullptr;
}
void libusb_close(libusb_device_handle *) {
    bus->note("close", 0, 0);
}
int libusb_kernel_driver_active(libusb_device_handle *, int interface) {
    return interface == 0 ? 1 : 0;
}
int libusb_detach_kernel_driver(libusb_device_handle *, int interface) {
    bus->note("detach", interface, 0);
    return 0;
}
int libusb_claim_interface(libusb_device_handle *, int interface) {
    bus->note("claim", interface, 0);
    return interface == bus->deniedInterface ? LIBUSB_ERROR_BUSY : 0;
}
int libusb_bulk_transfer(libusb_device_handle *, unsigned char endpoint, unsigned char *data, int length,
                         int *actual, unsigned int timeout) {
    const std::lock_guard lock(bus->mutex);
    if (endpoint == 0x82) {
        EXPECT_EQ(length, 512);
        EXPECT_EQ(timeout, 100U);
        if (bus->incoming.empty())
            return *actual = 0, LIBUSB_ERROR_TIMEOUT;
        const Bus::Block block = bus->incoming.front();
        bus->incoming.pop_front();
        *actual = static_cast<int>(block.bytes.copy(reinterpret_cast<char *>(data), 512));
        return block.code;
    }
    EXPECT_EQ(endpoint, 0x02);
    const auto taken = std::min(static_cast<std::size_t>(length), bus->mostBytes);
    bus->outgoing.append(reinterpret_cast<const char *>(data), taken);
    bus->calls += "send " + std::to_string(length) + " " + std::to_string(timeout) + "|";
    *actual = static_cast<int>(taken);
    return bus->sendCode;
}

} // extern "C"

class UsbInterfaceThreads : public testing::Test {
protected:
    UsbInterfaceThreads() { bus = &usb; }
    static std::string printedBy(const std::function<void()> &action) {
        testing::internal::CaptureStdout();
        action();
        return testing::internal::GetCapturedStdout();
    }

    Bus usb;
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
        EXPECT_EQ(usb.take(), opening);
        usb.hasDevice = true;
        usb.deniedInterface = 1;
        EXPECT_EQ(printedBy([&] { EXPECT_FALSE(link.openDevice()); }), "Device connected\n");
        EXPECT_EQ(usb.take(), opening + taking + "close 0 0|");
        EXPECT_FALSE(link.isClosed()) << "the reverse of its name";
        usb.deniedInterface = -1;
        EXPECT_TRUE(link.openDevice() && link.isClosed());
        EXPECT_EQ(usb.take(), opening + taking);
        link.serialClose();
        link.serialClose();
        EXPECT_EQ(usb.take(), "close 0 0|");
        EXPECT_TRUE(link.openDevice());
        usb.take();
    }
    EXPECT_EQ(usb.take(), "close 0 0|exit 0 0|");
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
    usb.take();
    const std::string bytes = std::string(512, 'a') + "b";
    link.sendBytes(bytes, 30ms);
    EXPECT_EQ(usb.take(), "send 512 30|send 1 30|");
    EXPECT_EQ(usb.outgoing, bytes);
    usb.mostBytes = 511;
    EXPECT_THROW(link.sendBytes(bytes, 30ms), std::runtime_error);
    EXPECT_EQ(usb.take(), "send 512 30|") << "nothing follows a block that went out in part";
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
        {
            const std::lock_guard lock(usb.mutex);
            usb.incoming = {{FAIL + "\n", LIBUSB_ERROR_IO},
                            {"", LIBUSB_ERROR_PIPE},
                            {STATE.substr(0, 5), LIBUSB_ERROR_TIMEOUT},
                            {STATE.substr(5) + "\n"}};
        }
        link.startReading();
        link.startReading();
        EXPECT_NE(inbox.next<StateMsg>(), nullptr);
        link.serialClose();
        link.stopReading();
        EXPECT_TRUE(inbox.take().empty());
    }
}
