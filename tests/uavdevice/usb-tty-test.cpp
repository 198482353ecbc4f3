#include "usb-tty.h"

#include "inbox.h"
#include "pty-device.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

class UsbTtyThreads : public testing::Test {
protected:
    SerialDirectory directory;
    PtyDevice device{directory};
    UsbTty tty{device.terminal()};
};

TEST_F(UsbTtyThreads, SetsTheLineUpAndLeavesTheRest) {
    for (const tcflag_t flags : {~tcflag_t(0), tcflag_t(0)}) {
        termios line = device.lineSettings();
        line.c_cflag = flags;
        line.c_lflag = flags & ~tcflag_t(EXTPROC);
        line.c_iflag = line.c_oflag = flags;
        cfsetspeed(&line, B57600);
        device.setLineSettings(line);
        line = device.lineSettings(); // the settings that the terminal has then
        ASSERT_TRUE(tty.openPort());
        const termios now = device.lineSettings();
        tty.serialClose();
        EXPECT_EQ(now.c_cflag,
                  (line.c_cflag & ~tcflag_t(PARENB | CSTOPB | CSIZE | CRTSCTS)) | CS8 | CREAD | CLOCAL);
        EXPECT_EQ(now.c_lflag, (line.c_lflag & ~tcflag_t(ICANON | ECHO | ECHOE | ECHONL)) | ISIG);
        EXPECT_EQ(now.c_iflag, line.c_iflag & ~tcflag_t(IXON | IXOFF | IXANY | IGNBRK | BRKINT | PARMRK |
                                                        ISTRIP | INLCR | IGNCR | ICRNL));
        EXPECT_EQ(now.c_oflag, line.c_oflag | OPOST | ONLCR);
        EXPECT_EQ(now.c_cc[VTIME], 10);
        EXPECT_EQ(now.c_cc[VMIN], 0);
    }
}

TEST_F(UsbTtyThreads, TellsWhyAPortDoesNotOpen) {
    const auto open = [this] {
        for (const char *port : {"", "/nowhere", "/dev/null"}) {
            tty.setPortName(port);
            EXPECT_FALSE(tty.openPort() || !tty.isClosed());
        }
    };
    EXPECT_EQ(printedBy(open), "Error 2 from open: No such file or directory\n"
                               "Error 25 from tcgetattr: Inappropriate ioctl for device\n");
}

/// Bytes 0x03 and 0x1c from a controlling terminal would end the process.
TEST_F(UsbTtyThreads, IsNoTerminalOfAProcessThatHasNone) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            setsid();
            const bool opened = tty.openPort();
            std::_Exit(opened && open("/dev/tty", O_RDWR) < 0 ? 0 : 1);
        },
        ExitedWithCode(0), "");
}

TEST_F(UsbTtyThreads, ASecondPortTakesThePlaceOfTheFirst) {
    PtyDevice other(directory, ProtoEnum::K6, "usb-other");
    ASSERT_TRUE(tty.openPort());
    ASSERT_TRUE(device.waitForOpen(true));
    tty.setPortName(other.terminal());
    ASSERT_TRUE(tty.openPort());
    EXPECT_TRUE(device.waitForOpen(false));
    tty.serialClose();
    EXPECT_TRUE(other.waitForOpen(false));
}

/// The battery is the user's. A sanitizer's own thread wakes up, too: hence the figure before.
TEST_F(UsbTtyThreads, NothingWakesUpForAnUnpluggedDeviceUntilTheNextOne) {
    const auto loadOfAQuarterSecond = [] { // wake-ups, and milliseconds of processor time
        rusage before{}, after{};
        getrusage(RUSAGE_SELF, &before);
        std::this_thread::sleep_for(250ms);
        getrusage(RUSAGE_SELF, &after);
        timeval spent{};
        timersub(&after.ru_utime, &before.ru_utime, &spent);
        return after.ru_nvcsw - before.ru_nvcsw + 1000 * spent.tv_sec + spent.tv_usec / 1000;
    };
    device.unplug();
    const long without = loadOfAQuarterSecond();
    device.plugIn();
    Inbox inbox;
    tty.addListener(inbox.listener);
    for (const char *former : {"none", "unplugged", "unplugged and closed"}) {
        tty.setPortName(device.terminal());
        ASSERT_TRUE(tty.openPort());
        device.sendText("{\"type\":\"OK\"}\n");
        EXPECT_TRUE(inbox.next<OkMsg>()) << former;
        device.unplug();
        long with = loadOfAQuarterSecond(); // the end of the device may still be in it
        for (int attempt = 0; attempt < 10 && with > without + 2; ++attempt)
            with = loadOfAQuarterSecond();
        EXPECT_LE(with, without + 2) << former;
        if (former == std::string("unplugged"))
            tty.serialClose();
        device.plugIn();
    }
    tty.serialClose();
}

/// A program that it starts, such as a viewer, would keep the port open.
TEST_F(UsbTtyThreads, ChildrenDoNotInheritTheLine) {
    for (const char *end : {"first", "in its place"}) {
        ASSERT_TRUE(tty.openPort());
        std::size_t inherited = 0, found = 0;
        for (const auto &entry : std::filesystem::directory_iterator("/proc/self/fd")) {
            std::error_code gone;
            if (std::filesystem::read_symlink(entry, gone) != device.terminal())
                continue;
            ++found;
            inherited += !(fcntl(std::stoi(entry.path().filename()), F_GETFD) & FD_CLOEXEC);
        }
        EXPECT_EQ(found, 1U) << end;
        EXPECT_EQ(inherited, 0U) << end;
    }
}

TEST_F(UsbTtyThreads, DropsBytesAfterAnInterruptedCall) {
    Inbox inbox;
    tty.addListener(inbox.listener);
    tty.addListener(std::make_shared<MsgListener>([](auto) { errno = EINTR; }));
    ASSERT_TRUE(tty.openPort());
    device.send(std::make_shared<OkMsg>());
    EXPECT_TRUE(inbox.next<OkMsg>());
    device.send(std::make_shared<OkMsg>());
    std::this_thread::sleep_for(50ms); // for them to come, if they do
    EXPECT_THAT(inbox.take(), IsEmpty());
}

TEST_F(UsbTtyThreads, AnyThreadMayAskForTheNameOrSetIt) {
    const auto set = [this] { tty.setPortName("/dev/ttyACM0"); };
    inOrder(
        set, [this] { EXPECT_EQ(tty.getPortName(), "/dev/ttyACM0"); });
    inOrder([this] { tty.getPortName(); }, set);
}

TEST_F(UsbTtyThreads, OpensOnlyWhenAnotherThreadHasClosed) {
    std::promise<void> isListening, mayReturn;
    tty.addListener(std::make_shared<MsgListener>([&](const std::shared_ptr<Msg> &) {
        isListening.set_value();
        mayReturn.get_future().wait();
        tty.startReading(); // must not wait for the thread that closes
    }));
    ASSERT_TRUE(tty.openPort());
    device.send(std::make_shared<OkMsg>());
    isListening.get_future().wait();
    const auto closing = meanwhile([this] { tty.serialClose(); });
    await([this] { return tty.isClosed(); });
    auto opening = std::async(std::launch::async, [this] { return tty.openPort(); });
    EXPECT_EQ(opening.wait_for(50ms), std::future_status::timeout);
    mayReturn.set_value();
    closing.wait();
    EXPECT_TRUE(opening.get() && !tty.isClosed());
    EXPECT_TRUE(device.waitForOpen(true));
}
