#include "cdc-acm-line.h"
#include "common/defaults.h"
#include "inbox.h"
#include "linux-connector.h"
#include "pty-device.h"
#include "stepped-wait.h"

#include <fcntl.h>
#include <unistd.h>

/// The link to a detector, on a line that takes bytes like the system's driver.
class LineThreads : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(tty.openPort()); }

    /// The bytes that the device gets for these requests.
    static std::string onTheWire(const std::vector<buffer_t> &requests) {
        std::string bytes;
        for (const buffer_t &request : requests)
            for (const char byte : request)
                bytes += byte == '\n' ? "\r\n" : std::string(1, byte);
        return bytes;
    }
    /// Makes the device pause when it has a part of a request.
    void pauseIn(const buffer_t &request) {
        line.hold();
        EXPECT_EQ(tty.sendWithin(request, 0ms), Sent::PART);
    }
    /// Acts while another thread waits with its request, and before that thread can go on.
    void whileWaiting(const buffer_t &request, Sent sent, const std::function<void()> &act) {
        std::promise<void> isWaiting, hasActed;
        const auto waiting = meanwhile([&] {
            const SteppedWait step([&] { isWaiting.set_value(); }, [&] { hasActed.get_future().wait(); });
            EXPECT_EQ(tty.sendWithin(request, 24h), sent);
        });
        isWaiting.get_future().wait();
        act();
        hasActed.set_value();
    }
    /// Makes the device take the pieces under way when the program asks for them.
    void releaseAtTheEnd() {
        line.whenAsked([this, looks = 0]() mutable {
            if (++looks == 3)
                line.release();
        });
    }

    const buffer_t ask = MsgToJsonParser::toJson(std::make_shared<GetStateMsg>()); // 5 pieces
    const buffer_t config = MsgToJsonParser::toJson(Defaults::getDefaultConfigMsg(ProtoEnum::K7));
    const buffer_t jammers = MsgToJsonParser::toJson(Defaults::getDefaultConfigEwMsg(ProtoEnum::K7EW));
    SerialDirectory directory;
    PtyDevice device{directory};
    CdcAcmLine line{device.terminal()};
    UsbTty tty{device.terminal()};
};

TEST_F(LineThreads, ASlowDeviceGetsEachRequestWholeAndInOrder) {
    for (const auto pace : {0us, 100us, 1000us}) {
        line.setPace(pace);
        device.clearRecord();
        for (const buffer_t &request : {config, ask, jammers})
            EXPECT_EQ(tty.sendWithin(request, 60s), Sent::WHOLE);
        EXPECT_TRUE(device.waitForRequests(3));
        EXPECT_EQ(device.received(), onTheWire({config, ask, jammers})) << pace.count();
    }
}

/// A device that pauses while it writes its flash.
TEST_F(LineThreads, WhatHasBegunIsNeverCutAndNothingOvertakesIt) {
    line.hold();
    EXPECT_EQ(tty.sendWithin(config, 20ms), Sent::PART);
    EXPECT_EQ(tty.sendWithin(ask, 5ms), Sent::NOTHING);
    EXPECT_EQ(tty.sendWithin(jammers, 0ms), Sent::NOTHING);
    const auto waiting = meanwhile([&] { EXPECT_EQ(tty.sendWithin(ask, 60s), Sent::WHOLE); });
    line.release();
    waiting.wait();
    EXPECT_TRUE(device.waitForRequests(2));
    pauseIn(config);
    line.release(); // without another request
    EXPECT_TRUE(device.waitForRequests(3));
    EXPECT_EQ(device.received(), onTheWire({config, ask, config}));
}

/// The line gets room between the program's looks at it.
TEST_F(LineThreads, NothingOvertakesARestThatBecomesShorter) {
    line.hold();
    line.makeRoomAfterRefusals();
    EXPECT_EQ(tty.sendWithin(config, 0ms), Sent::PART);
    EXPECT_EQ(tty.sendWithin(ask, 60s), Sent::WHOLE);
    line.release();
    EXPECT_TRUE(device.waitForRequests(2));
    EXPECT_EQ(device.received(), onTheWire({config, ask}));
}

/// The thread that asked wakes up late, when another request has begun.
TEST_F(LineThreads, ARequestThatHasLeftIsWholeWhateverFollows) {
    line.hold();
    whileWaiting(config, Sent::WHOLE, [this] {
        line.release();
        EXPECT_TRUE(device.waitForRequests(1));
        pauseIn(jammers);
    });
    line.release();
}

TEST_F(LineThreads, HasNeitherParityNorHandshakeWhateverWasLeftOn) {
    line.control = PARENB | PARODD | CSTOPB | CS6 | CRTSCTS;
    ASSERT_TRUE(tty.openPort());
    EXPECT_EQ(line.control, tcflag_t(PARODD | CS8 | CREAD | CLOCAL));
}

/// More than one attempt, since a busy machine may hold one up.
TEST_F(LineThreads, WaitingForRoomAndForTheRestHaveOneTimeOut) {
    const auto pieces = 2 * std::count(config.begin(), config.end(), '\n') + 1;
    const auto inTime = [&] {
        EXPECT_TRUE(tty.openPort());
        pauseIn(config);
        const auto start = std::chrono::steady_clock::now();
        const auto left = std::make_shared<std::atomic<long>>(pieces + 1); // and a piece of the next request
        line.takeWhile(
            [left, start] { return std::chrono::steady_clock::now() - start > 150ms && (*left)-- > 0; });
        tty.sendWithin(config, 200ms);
        const bool isLate = std::chrono::steady_clock::now() - start >= 330ms;
        line.release();
        return !isLate;
    };
    int attempts = 0;
    while (!inTime() && ++attempts < 20)
        continue;
    EXPECT_LT(attempts, 20);
}

/// A descriptor that has gone may be that of a file since.
TEST_F(LineThreads, NothingIsWrittenWhereTheLineWas) {
    EXPECT_EQ(tty.sendWithin(ask, 60s), Sent::WHOLE);
    tty.serialClose();
    std::vector<std::array<int, 2>> pipes(8);
    for (auto &ends : pipes)
        ASSERT_EQ(pipe2(ends.data(), O_NONBLOCK), 0);
    EXPECT_EQ(tty.sendWithin(ask, 0ms), Sent::CLOSED);
    for (const auto &ends : pipes) {
        char byte;
        EXPECT_EQ(read(ends[0], &byte, 1), -1);
        close(ends[0]), close(ends[1]);
    }
}

TEST_F(LineThreads, RoomIsWhatAWriteTakes) {
    line.hold();
    for (const Sent sent : {Sent::WHOLE, Sent::WHOLE, Sent::WHOLE, Sent::PART, Sent::NOTHING})
        EXPECT_EQ(tty.sendWithin(ask, 5ms), sent);
}

/// This device takes nothing until its own bytes are read.
TEST_F(LineThreads, TheEndGoesOnReading) {
    const auto isHeard = std::make_shared<std::atomic<bool>>(false);
    tty.addListener(
        std::make_shared<MsgListener>([isHeard](const std::shared_ptr<Msg> &) { *isHeard = true; }));
    ASSERT_TRUE(tty.openPort());
    line.takeWhile([isHeard] { return isHeard->load(); });
    EXPECT_EQ(tty.sendWithin(ask, 0ms), Sent::WHOLE);
    line.whenAsked([this, looks = 0]() mutable {
        if (++looks == 3)
            device.sendText("{\"type\":\"OK\"}\n");
    });
    tty.serialClose();
    EXPECT_TRUE(device.waitForRequests(1));
}

TEST_F(LineThreads, NothingBeginsAtTheEnd) {
    line.hold();
    EXPECT_EQ(tty.sendWithin(ask, 0ms), Sent::WHOLE);
    std::promise<void> isEnding;
    line.whenAsked([&, looks = 0]() mutable {
        if (++looks == 1)
            isEnding.set_value();
    });
    const auto late = meanwhile([&] {
        isEnding.get_future().wait();
        EXPECT_EQ(tty.sendWithin(ask, std::chrono::milliseconds::max()), Sent::CLOSED);
        EXPECT_EQ(tty.sendWithin(ask, 24h), Sent::CLOSED);
    });
    tty.serialClose();
}

TEST_F(LineThreads, AHungDeviceHoldsNobodyUpAndKeepsNothingForTheNext) {
    PtyDevice other(directory, ProtoEnum::K6, "usb-other");
    const auto hang = [this] {
        tty.setPortName(device.terminal());
        EXPECT_TRUE(tty.openPort());
        pauseIn(config);
    };
    const auto isNextOne = [this](PtyDevice &next) {
        next.clearRecord();
        EXPECT_EQ(tty.sendWithin(ask, 60s), Sent::WHOLE);
        EXPECT_TRUE(next.waitForRequests(1));
        EXPECT_EQ(next.received(), onTheWire({ask}));
        tty.serialClose();
    };
    const auto looks = std::make_shared<std::atomic<int>>(0); // one in a millisecond at most
    line.whenAsked([looks] { ++*looks; });
    hang();
    const auto start = std::chrono::steady_clock::now();
    whileWaiting(ask, Sent::CLOSED, [this] { tty.serialClose(); });
    EXPECT_GE(std::chrono::steady_clock::now() - start, 500ms) << "a sweep is shorter";
    EXPECT_LE(*looks, 520) << "half a second";
    hang();
    whileWaiting(ask, Sent::CLOSED, [&] {
        tty.setPortName(other.terminal());
        EXPECT_TRUE(tty.openPort());
    });
    isNextOne(other);
    hang();
    EXPECT_TRUE(tty.openPort()) << "once more";
    line.release();
    isNextOne(device);
    EXPECT_EQ(line.leftToClose(), 0U) << "the system's close would wait for these pieces";
    hang();
    device.unplug();
    EXPECT_EQ(tty.sendWithin(ask, 5ms), Sent::NOTHING);
    tty.serialClose();
    device.plugIn();
    line.release();
    tty.setPortName(device.terminal());
    ASSERT_TRUE(tty.openPort());
    isNextOne(device);
}

/// The same with the connector, which sends the requests of a connection.
class ConnectorLineThreads : public LineThreads {
protected:
    void SetUp() override {}
    void connect() {
        for (int attempt = 0; attempt < 20 && connector->isClosed(); ++attempt)
            connector->connectInterface();
        reports.clear();
        device.clearRecord();
    }
    std::shared_ptr<Msg> scan(bool on) {
        return connector->busyTransaction(ScanMsgBuilder().scan(on).share(), 50ms);
    }

    std::vector<std::string> reports;
    std::optional<LinuxConnector> connector{std::in_place, directory.path(), [](const char *) {},
                                            [this](const char *report) { reports.push_back(report); }};
    const std::shared_ptr<Msg> setting = Defaults::getDefaultConfigMsg(ProtoEnum::K7);
};

TEST_F(ConnectorLineThreads, ARequestThatWasGivenUpIsReportedOnce) {
    EXPECT_EQ(connector->busyTransaction(setting, 24h), nullptr) << "not connected";
    EXPECT_THAT(reports, IsEmpty());
    tty.openPort();
    pauseIn(config);
    releaseAtTheEnd();
    connector->connectInterface();
    EXPECT_THAT(reports, ElementsAre(HasSubstr("nothing of GET_STATE within 100 ms")));
    tty.serialClose();
    connect();
    line.hold();
    EXPECT_EQ(connector->busyTransaction(setting, 20ms), nullptr);
    EXPECT_EQ(connector->busyTransaction(setting, 5ms), nullptr);
    EXPECT_THAT(reports,
                ElementsAre(device.terminal() +
                                ": the device took only a part of CONFIG within 20 ms: the rest "
                                "is sent once it takes more",
                            device.terminal() + ": the device took nothing of CONFIG within 5 ms: it was not "
                                                "sent; if that stays so, plug the device in again"));
    const auto closing = meanwhile([this] { connector->disconnect(); });
    EXPECT_EQ(connector->transaction(setting, 24h, {}), nullptr);
    closing.wait();
    EXPECT_EQ(reports.size(), 2U) << "the end of the line is not reported";
}

/// The request to stop the scan has to wait for the rest of a setting, and the device is busy for longer than
/// its time-out.
TEST_F(ConnectorLineThreads, NoDeviceScansOnAfterTheEnd) {
    for (const bool scans : {true, false}) {
        connect();
        scan(scans);
        EXPECT_TRUE(device.waitForRequests(1) && device.isScanning() == scans);
        line.hold();
        EXPECT_EQ(connector->busyTransaction(setting, 5ms), nullptr);
        EXPECT_EQ(scan(!scans), nullptr);
        releaseAtTheEnd();
        scans ? connector->disconnect() : connector.reset();
        EXPECT_TRUE(device.waitForRequests(2 + scans));
        EXPECT_EQ(device.requestTypes().size(), 2U + scans) << "only a stop is sent late";
        EXPECT_FALSE(device.isScanning());
    }
}
