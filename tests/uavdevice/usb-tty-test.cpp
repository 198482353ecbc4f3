#include "usb-tty.h"

#include "inbox.h"
#include "pty-device.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class UsbTtyThreads : public testing::Test {
protected:
    SerialDirectory directory;
    PtyDevice device{directory};
    Inbox inbox;
    UsbTty tty{device.terminal()};

    UsbTtyThreads() { tty.addListener(inbox.listener); }
};

} // namespace

TEST_F(UsbTtyThreads, SetsTheLineUpAndLeavesTheRest) {
    termios line = device.lineSettings();
    line.c_cflag =
        (line.c_cflag | PARENB | CSTOPB | CRTSCTS | HUPCL) & ~static_cast<tcflag_t>(CREAD | CLOCAL);
    line.c_lflag = (line.c_lflag | ICANON | ECHO | ECHOE | ECHONL | IEXTEN) & ~static_cast<tcflag_t>(ISIG);
    line.c_iflag = ~static_cast<tcflag_t>(0);
    line.c_oflag = OCRNL;
    cfsetspeed(&line, B57600);
    device.setLineSettings(line);
    line = device.lineSettings(); // what the terminal took of it

    ASSERT_TRUE(tty.openPort());
    const termios now = device.lineSettings();
    EXPECT_EQ(now.c_cflag & (PARENB | CSTOPB | CRTSCTS), 0U);
    EXPECT_EQ(now.c_cflag & (CSIZE | CREAD | CLOCAL | HUPCL), tcflag_t(CS8 | CREAD | CLOCAL | HUPCL));
    EXPECT_EQ(now.c_lflag, (line.c_lflag | ISIG) & ~tcflag_t(ICANON | ECHO | ECHOE | ECHONL));
    EXPECT_EQ(now.c_iflag, line.c_iflag & ~tcflag_t(IXON | IXOFF | IXANY | IGNBRK | BRKINT | PARMRK | ISTRIP |
                                                    INLCR | IGNCR | ICRNL));
    EXPECT_EQ(now.c_oflag, line.c_oflag | OPOST | ONLCR);
    EXPECT_EQ(now.c_cc[VTIME], 10);
    EXPECT_EQ(now.c_cc[VMIN], 0);
    EXPECT_EQ(cfgetospeed(&now), speed_t(B57600));
}

TEST_F(UsbTtyThreads, ASecondPortTakesThePlaceOfTheFirst) {
    PtyDevice other(directory, ProtoEnum::K6, "usb-other");
    ASSERT_TRUE(tty.openPort());
    ASSERT_TRUE(device.waitForOpen(true));
    tty.setPortName(other.terminal());
    ASSERT_TRUE(tty.openPort());
    EXPECT_TRUE(device.waitForOpen(false));
    other.sendText("{\"type\":\"OK\"}\n");
    EXPECT_TRUE(inbox.at(0));
    tty.serialClose();
    EXPECT_TRUE(other.waitForOpen(false));
}

TEST_F(UsbTtyThreads, OpensAndClosesWhileOthersSend) {
    device.setScanPeriod(1ms);
    device.startStreaming();
    std::atomic<bool> done{false};
    std::thread sender([&] {
        while (!done)
            tty.sendBytes(" ", 100ms);
    });
    std::thread closer([&] {
        while (!done)
            tty.serialClose();
    });
    for (int i = 0; i < 50; ++i) {
        EXPECT_TRUE(tty.openPort());
        tty.serialClose();
    }
    done = true;
    sender.join();
    closer.join();
    EXPECT_TRUE(device.waitForOpen(false));
}
