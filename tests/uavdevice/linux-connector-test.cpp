#include "linux-connector.h"

#include "inbox.h"
#include "msg/all-messages.h"
#include "pty-device.h"

#include <fstream>
#include <gmock/gmock.h>

using namespace std::chrono_literals;
using testing::IsEmpty;

namespace {

std::size_t openDescriptors() {
    const std::filesystem::directory_iterator descriptors("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(descriptors), end(descriptors)));
}

class LinuxConnectorThreads : public testing::Test {
protected:
    SerialDirectory directory;
    LinuxConnector connector{directory.path()};

    /// More than one attempt, since a busy machine may miss the 100 ms of a probe.
    bool connects() {
        for (int attempt = 0; attempt < 20; ++attempt)
            if (connector.connectInterface())
                return true;
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
            std::filesystem::create_symlink("/dev/null", file.string() + "-null");
            std::filesystem::create_symlink("../nowhere/tty", file.string() + "-gone");
        }
    }
};

} // namespace

TEST_F(LinuxConnectorThreads, FindsNothingWhereNothingIs) {
    const auto descriptors = openDescriptors();
    EXPECT_FALSE(LinuxConnector(directory.path() / "missing").connectInterface());
    EXPECT_FALSE(LinuxConnector("/dev/null").connectInterface());
    EXPECT_FALSE(connector.connectInterface());
    makeOtherEntries();
    EXPECT_FALSE(connector.connectInterface());
    // A link to itself has no canonical form: the search ends there.
    std::filesystem::create_symlink("usb-loop", directory.path() / "usb-loop");
    EXPECT_FALSE(connector.connectInterface());
    EXPECT_TRUE(connector.isClosed());
    EXPECT_EQ(openDescriptors(), descriptors);
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

TEST_F(LinuxConnectorThreads, TheSimulatorTakesThePlaceOfTheDevice) {
    PtyDevice device(directory);
    Inbox inbox;
    connector.addListener(inbox.listener);
    connector.startTesting();
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
