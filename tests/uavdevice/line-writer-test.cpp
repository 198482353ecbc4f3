#include "cdc-acm-line.h"
#include "common/defaults.h"
#include "inbox.h"
#include "linux-connector.h"
#include "msg-to-json-parser.h"
#include "msg/all-messages.h"
#include "pty-device.h"

#include <gmock/gmock.h>

using namespace std::chrono_literals;
using testing::ElementsAre;

/// The link to a detector on a line that takes bytes as the system's driver does.
class LineThreads : public testing::Test {
protected:
    /// What the device gets of these requests.
    static std::string onTheWire(const std::vector<buffer_t> &requests) {
        std::string bytes;
        for (const buffer_t &request : requests)
            for (const char byte : request)
                bytes += byte == '\n' ? "\r\n" : std::string(1, byte);
        return bytes;
    }
    /// Has the device take what is under way once the program looks after it.
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
    ASSERT_TRUE(tty.openPort());
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
    ASSERT_TRUE(tty.openPort());
    line.hold();
    EXPECT_EQ(tty.sendWithin(config, 20ms), Sent::PART);
    EXPECT_EQ(tty.sendWithin(ask, 5ms), Sent::NOTHING);
    EXPECT_EQ(tty.sendWithin(jammers, 0ms), Sent::NOTHING);
    std::thread waiting([&] { EXPECT_EQ(tty.sendWithin(ask, 60s), Sent::WHOLE); });
    line.release();
    waiting.join();
    EXPECT_TRUE(device.waitForRequests(2));
    line.hold();
    EXPECT_EQ(tty.sendWithin(config, 5ms), Sent::PART);
    line.release(); // and nobody sends any more
    EXPECT_TRUE(device.waitForRequests(3));
    EXPECT_EQ(device.received(), onTheWire({config, ask, config}));
}

TEST_F(LineThreads, RoomIsWhatAWriteTakes) {
    ASSERT_TRUE(tty.openPort());
    line.hold();
    for (const Sent sent : {Sent::WHOLE, Sent::WHOLE, Sent::WHOLE, Sent::PART, Sent::NOTHING})
        EXPECT_EQ(tty.sendWithin(ask, 5ms), sent);
}

TEST_F(LineThreads, TheEndWaitsForWhatADeviceTakesLate) {
    ASSERT_TRUE(tty.openPort());
    line.hold();
    EXPECT_EQ(tty.sendWithin(config, 0ms), Sent::PART);
    releaseAtTheEnd();
    tty.serialClose();
    EXPECT_TRUE(device.waitForRequests(1));
    EXPECT_EQ(device.received(), onTheWire({config}));
}

/// It takes nothing as long as nobody takes what it has to say.
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

TEST_F(LineThreads, AHungDeviceHoldsNobodyUpAndKeepsNothingForTheNext) {
    PtyDevice other(directory, ProtoEnum::K6, "usb-other");
    const auto hang = [this](const std::string &terminal) {
        tty.setPortName(terminal);
        EXPECT_TRUE(tty.openPort());
        line.hold();
        EXPECT_EQ(tty.sendWithin(config, 0ms), Sent::PART);
    };
    const auto isNextOne = [this](const PtyDevice &next) {
        EXPECT_EQ(tty.sendWithin(ask, 60s), Sent::WHOLE);
        EXPECT_TRUE(next.waitForRequests(1));
        EXPECT_EQ(next.received(), onTheWire({ask}));
    };
    hang(device.terminal());
    std::thread waiting(
        [&] { EXPECT_EQ(tty.sendWithin(ask, 24h), Sent::NOTHING) << "closing ends the wait"; });
    tty.serialClose();
    waiting.join();
    EXPECT_EQ(tty.sendWithin(ask, 24h), Sent::NOTHING) << "closed";
    hang(device.terminal());
    tty.setPortName(other.terminal());
    ASSERT_TRUE(tty.openPort()) << "in place of the hung one";
    isNextOne(other);
    tty.serialClose();
    EXPECT_EQ(line.leftToClose(), 0U) << "the system's close waits for what is under way";
    hang(device.terminal());
    device.unplug();
    EXPECT_EQ(tty.sendWithin(ask, 5ms), Sent::NOTHING);
    tty.serialClose();
    device.plugIn();
    line.release();
    tty.setPortName(device.terminal());
    ASSERT_TRUE(tty.openPort());
    isNextOne(device);
}

TEST_F(LineThreads, ARequestThatWasGivenUpIsReportedOnce) {
    std::vector<std::string> reports;
    LinuxConnector connector(
        directory.path(), [](const char *) {}, [&](const char *report) { reports.push_back(report); });
    connector.busyTransaction(std::make_shared<GetStateMsg>(), 5ms); // not connected: nothing to report
    for (int attempt = 0; attempt < 20 && connector.isClosed(); ++attempt)
        connector.connectInterface();
    reports.clear();
    line.hold();
    const auto setting = Defaults::getDefaultConfigMsg(ProtoEnum::K7);
    EXPECT_EQ(connector.busyTransaction(setting, 20ms), nullptr);
    EXPECT_EQ(connector.busyTransaction(setting, 5ms), nullptr);
    EXPECT_THAT(reports,
                ElementsAre(device.terminal() +
                                ": the device took only a part of CONFIG within 20 ms: the rest is "
                                "sent once it takes more; if that stays so, plug the device in anew",
                            device.terminal() + ": the device took nothing of CONFIG within 5 ms: it was not "
                                                "sent; if that stays so, plug the device in anew"));
    releaseAtTheEnd();
}
