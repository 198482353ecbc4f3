#include "usb-interface.h"

#include "inbox.h"

#include <cstring>
#include <gtest/gtest.h>
#include <numeric>

using namespace std::chrono_literals;

namespace {

/// Stands for an open device: transfers out are recorded, transfers in follow a script and then time out.
class ScriptedUsb : public UsbInterface {
public:
    struct Transfer {
        int code;
        std::string bytes;
    };

    ScriptedUsb() { closed = false; }
    ~ScriptedUsb() override {
        serialClose();
        stopReading();
    }

    std::vector<Transfer> script;
    std::vector<std::string> sent;
    std::size_t failingBlock = 99;
    int failure = 0;

private:
    int transfer(unsigned char endpoint, buffer_t &block, int &actual, unsigned int) override {
        actual = static_cast<int>(block.size());
        if (endpoint == 0x02) {
            sent.push_back(block);
            actual -= sent.size() == failingBlock && failure == 0 ? 1 : 0;
            return sent.size() == failingBlock ? failure : 0;
        }
        EXPECT_EQ(endpoint, 0x82);
        EXPECT_EQ(actual, 512);
        const Transfer now = step < script.size() ? script[step++] : Transfer{LIBUSB_ERROR_TIMEOUT, ""};
        std::memcpy(block.data(), now.bytes.data(), now.bytes.size());
        actual = static_cast<int>(now.bytes.size());
        return now.code;
    }

    std::size_t step = 0;
};

} // namespace

TEST(UsbInterface, SendsBlocksOfAtMost512Bytes) {
    for (const std::size_t size : {0U, 512U, 513U, 1024U}) {
        ScriptedUsb usb;
        std::string bytes(size, 'a');
        std::iota(bytes.begin(), bytes.end(), 'a');
        usb.sendBytes(bytes, 100ms);
        EXPECT_EQ(std::accumulate(usb.sent.begin(), usb.sent.end(), std::string()), bytes);
        EXPECT_EQ(usb.sent.size(), (size + 511) / 512);
    }
}

TEST(UsbInterface, RaisesWhenABlockDoesNotGetThrough) {
    for (const int failure : {int(LIBUSB_ERROR_TIMEOUT), 0 /* a byte short */}) {
        ScriptedUsb usb;
        usb.failingBlock = 2;
        usb.failure = failure;
        EXPECT_THROW(usb.sendBytes(std::string(1500, 'a'), 100ms), std::runtime_error);
        EXPECT_EQ(usb.sent.size(), 2U);
    }
}

TEST(UsbInterfaceThreads, DeliversWhatATransferBroughtBesideATimeOutButNotBesideAnIoError) {
    ScriptedUsb usb;
    Inbox inbox;
    usb.addListener(inbox.listener);
    usb.script = {{LIBUSB_ERROR_IO, "}{"}, {0, "{\"type\":"}, {0, ""}, {LIBUSB_ERROR_TIMEOUT, "\"OK\"}\n"}};
    usb.startReading();
    ASSERT_TRUE(inbox.at(0));
    EXPECT_EQ(inbox.at(0)->getType(), MsgTypeEnum::OK);
}

TEST(UsbInterface, HasNoDeviceUntilOneIsOpened) {
    UsbInterface usb;
    EXPECT_FALSE(usb.openDevice());
    EXPECT_THROW(usb.sendBytes("a", 100ms), std::runtime_error);
    usb.startReading();
    usb.stopReading();
}
