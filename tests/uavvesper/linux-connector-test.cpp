#include "linux-connector.h"

#include "inbox.h"
#include "msg/all-messages.h"
#include "pty-device.h"

#include <fstream>
#include <gmock/gmock.h>

using namespace std::chrono_literals;
using testing::IsEmpty;

namespace {

class LinuxConnectorThreads : public testing::Test {
protected:
    SerialDirectory directory;
    LinuxConnector connector{directory.path()};

    /// More than one attempt, since a busy machine may miss the 100 ms of a probe.
    bool connects() {
        for (int attempt = 0; attempt < 20; ++attempt) {
            if (connector.connectInterface())
                return true;
        }
        return false;
    }

    MsgTypeEnum typeOfReply(const std::shared_ptr<Msg> &request) {
        const auto reply = connector.busyTransaction(request, PtyDevice::DEADLINE);
        return reply ? reply->getType() : MsgTypeEnum::USB_NODE_INIT;
    }

    /// Entries that are no device of ours, so many that some come before a device in any order.
    void makeOtherEntries() {
        for (const char *suffix : {"1", "2", "3", "4", "5", "6"}) {
            const auto file = directory.path() / (std::string("file") + suffix);
            std::ofstream(file) << "not a link";
            std::filesystem::create_symlink(file.filename(), file.string() + "-link");
            std::filesystem::create_symlink("../nowhere/tty", file.string() + "-gone");
        }
    }
};

} // namespace

TEST_F(LinuxConnectorThreads, FindsNothingWhereNothingIs) {
    EXPECT_FALSE(connector.connectInterface());
    connector.disconnect();
    makeOtherEntries();
    EXPECT_FALSE(connector.connectInterface());
    EXPECT_FALSE(LinuxConnector(directory.path() / "missing").connectInterface());
    // A link to itself has no canonical form: the search ends there.
    std::filesystem::create_symlink("usb-loop", directory.path() / "usb-loop");
    EXPECT_FALSE(connector.connectInterface());
    EXPECT_TRUE(connector.isClosed());
}

/// The order of the entries is the file system's, so the device is there first once and last once.
TEST_F(LinuxConnectorThreads, FindsTheDeviceBesideOthers) {
    makeOtherEntries();
    for (const bool deviceFirst : {true, false}) {
        SCOPED_TRACE(deviceFirst);
        std::unique_ptr<PtyDevice> device;
        if (deviceFirst)
            device = std::make_unique<PtyDevice>(directory);
        PtyDevice silent(directory, ProtoEnum::K7, "usb-silent");
        silent.setManner(PtyDevice::Manner::SILENT);
        PtyDevice streaming(directory, ProtoEnum::K7, "usb-streaming");
        streaming.startStreaming();
        streaming.setAnswerDelay(50ms); // so that a scan comes first
        if (!device)
            device = std::make_unique<PtyDevice>(directory);

        ASSERT_TRUE(connects());
        EXPECT_EQ(connector.getPortName(), device->terminal());
        EXPECT_TRUE(silent.waitForOpen(false));
        EXPECT_TRUE(streaming.waitForOpen(false));
        EXPECT_EQ(typeOfReply(std::make_shared<GetConfigMsg>()), MsgTypeEnum::CONFIG);
        connector.disconnect();
        EXPECT_TRUE(device->waitForOpen(false));
    }
}

TEST_F(LinuxConnectorThreads, PassesOverWhoAnswersTooLateOrTalksOfSomethingElse) {
    PtyDevice device(directory);
    device.setAnswerDelay(1h);
    EXPECT_FALSE(connector.connectInterface());
    device.setAnswerDelay(50ms);
    device.startStreaming();
    EXPECT_FALSE(connector.connectInterface());
    device.setScanPeriod(0ms);
    device.setAnswerDelay(0ms);
    device.setManner(PtyDevice::Manner::NOISY);
    EXPECT_TRUE(connects());
}

TEST_F(LinuxConnectorThreads, PutsOneRequestAtATimeOnTheLine) {
    PtyDevice device(directory);
    device.setAnswerDelay(2ms);
    ASSERT_TRUE(connects());
    std::thread other([&] {
        for (int i = 0; i < 25; ++i)
            EXPECT_EQ(typeOfReply(std::make_shared<GetAiPriorMsg>()), MsgTypeEnum::AI_PRIOR);
    });
    for (int i = 0; i < 25; ++i)
        EXPECT_EQ(typeOfReply(std::make_shared<GetConfigK7Msg>()), MsgTypeEnum::CONFIG_K7);
    other.join();
    EXPECT_FALSE(connector.isBusy());
}

TEST_F(LinuxConnectorThreads, DisconnectsDuringAnAttempt) {
    PtyDevice device(directory);
    device.setManner(PtyDevice::Manner::SILENT);
    for (std::size_t attempt = 1; attempt <= 3; ++attempt) {
        std::thread connecting([&] { EXPECT_FALSE(connector.connectInterface()); });
        EXPECT_TRUE(device.waitForRequests(attempt));
        connector.disconnect();
        connecting.join();
        EXPECT_TRUE(device.waitForOpen(false));
    }
}

TEST_F(LinuxConnectorThreads, FindsADeviceThatCameBack) {
    PtyDevice device(directory);
    ASSERT_TRUE(connects());
    device.unplug();
    EXPECT_EQ(connector.busyTransaction(std::make_shared<GetStateMsg>(), 5ms), nullptr);
    EXPECT_FALSE(connector.isClosed());
    connector.disconnect();
    EXPECT_FALSE(connector.connectInterface());
    device.plugIn();
    EXPECT_TRUE(connects());
}

TEST_F(LinuxConnectorThreads, ListenersComeAndGoWhileMessagesFlow) {
    PtyDevice device(directory);
    ASSERT_TRUE(connects());
    const auto narrow = ConfigMsgBuilder().ranges({FreqModeEnum::STD_2400}).build(); // for short scans
    EXPECT_EQ(typeOfReply(std::make_shared<ConfigMsg>(narrow)), MsgTypeEnum::OK);
    device.setScanPeriod(1ms);
    device.startStreaming();
    for (int i = 0; i < 30; ++i) {
        Inbox inbox; // its listener must not run any more when it goes
        connector.addListener(inbox.listener);
        EXPECT_TRUE(inbox.at(0));
        connector.removeListener(inbox.listener);
    }
}

TEST_F(LinuxConnectorThreads, TheSimulatorTakesThePlaceOfTheDevice) {
    PtyDevice device(directory);
    Inbox inbox;
    connector.addListener(inbox.listener);
    connector.startTesting();
    EXPECT_TRUE(connector.isTesting());
    const auto config = connector.busyTransaction(std::make_shared<GetConfigMsg>(), 0ms);
    ASSERT_TRUE(config);
    EXPECT_EQ(inbox.at(0), config);
    connector.disconnect();
    EXPECT_FALSE(connector.isTesting());
    EXPECT_EQ(connector.busyTransaction(std::make_shared<GetConfigMsg>(), 0ms), nullptr);
    connector.startTesting();
    connector.busyTransaction(std::make_shared<GetConfigMsg>(), 0ms);
    EXPECT_EQ(inbox.size(), 2U); // each answer once
    EXPECT_THAT(device.received(), IsEmpty());
}
