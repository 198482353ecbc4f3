#include "linux-connector.h"

#include "inbox.h"
#include "pty-device.h"

namespace fs = std::filesystem;

class LinuxConnectorThreads : public testing::Test {
protected:
    SerialDirectory directory;
    std::vector<std::string> reports;
    const LinuxConnector::Report report = [this](const char *text) { reports.push_back(text); };
    LinuxConnector connector{directory.path(), report, report};

    /// Makes several attempts, because a busy machine may miss the 100 ms of a probe.
    bool connects() {
        for (int attempt = 0; attempt < 20; ++attempt)
            if (connector.connectInterface())
                return true;
        return false;
    }
};

TEST_F(LinuxConnectorThreads, FindsNothingWhereNothingIs) {
    const auto descriptors = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    };
    const auto before = descriptors();
    EXPECT_FALSE(LinuxConnector(directory.path() / "missing", report).connectInterface());
    fs::create_symlink("/dev/null", directory.path() / "null");
    std::ofstream(directory.path() / "file") << "no link";
    EXPECT_FALSE(connector.connectInterface());
    EXPECT_THAT(reports, ElementsAre("/dev/null: no serial line"));
    reports.clear();
    fs::remove(directory.path() / "null");
    // A broken link ends the search, so several give one report.
    for (const char *name : {"gone-1", "gone-2", "gone-3"})
        fs::create_symlink("../nowhere/tty", directory.path() / name);
    EXPECT_FALSE(connector.connectInterface());
    EXPECT_THAT(reports, ElementsAre(HasSubstr("nowhere/tty")));
    EXPECT_EQ(descriptors(), before);
}

/// The file system decides the order of the entries. So the device is made first once and last once.
TEST_F(LinuxConnectorThreads, FindsTheDeviceBesideOthers) {
    for (const bool deviceFirst : {true, false}) {
        std::optional<PtyDevice> device, other;
        for (const bool isDevice : {deviceFirst, !deviceFirst})
            isDevice ? device.emplace(directory) : other.emplace(directory, ProtoEnum::K7, "usb-other");
        other->setManner(PtyDevice::Manner::SILENT);
        ASSERT_TRUE(connects());
        EXPECT_EQ(connector.getPortName(), device->terminal());
        EXPECT_THAT(device->requestTypes(), AllOf(Not(IsEmpty()), Each("GET_STATE")));
        connector.disconnect();
        EXPECT_TRUE(device->waitForOpen(false));
    }
}

TEST_F(LinuxConnectorThreads, TakesOnlyADeviceThatAnswersInTimeAndOfItsState) {
    PtyDevice device(directory);
    const auto isPassedOver = [&] {
        return !connector.connectInterface() && connector.isClosed() && device.waitForOpen(false);
    };
    device.setAnswerDelay(1s);
    EXPECT_TRUE(isPassedOver()) << "too late";
    EXPECT_THAT(reports, ElementsAre(StartsWith(device.terminal() + ": no answer within 100 ms")));
    device.setManner(PtyDevice::Manner::SILENT);
    const auto isTold = [&] {
        return reports.back().find("answered with OK instead of STATE") != std::string::npos;
    };
    // On a busy machine the message may come too late.
    for (int attempt = 0; attempt < 20 && !isTold(); ++attempt) {
        const auto talking = meanwhile([&] {
            device.waitForOpen(true);
            device.sendText("{\"type\":\"OK\"}\n");
        });
        EXPECT_TRUE(isPassedOver()) << "talks of something else";
    }
    EXPECT_TRUE(isTold()) << reports.back();
    device.setManner(PtyDevice::Manner::OBLIGING);
    device.setAnswerDelay(50ms);
    EXPECT_TRUE(connects()) << "an answer after half of the time-out is in time";
}

TEST_F(LinuxConnectorThreads, PutsOneRequestAtATimeOnTheLine) {
    PtyDevice device(directory);
    device.setAnswerDelay(2ms);
    ASSERT_TRUE(connects());
    const auto ask = [&](const MsgType &type) {
        for (int i = 0; i < 25; ++i)
            EXPECT_EQ(connector.busyTransaction(type.getRequestMsg(), PtyDevice::DEADLINE)->getType(),
                      type.getValue());
    };
    const auto other = meanwhile([&] { ask(MsgTypeEnum::AI_PRIOR); });
    ask(MsgTypeEnum::CONFIG_K7);
    other.wait();
    EXPECT_FALSE(connector.isBusy());
}

TEST_F(LinuxConnectorThreads, TheSimulatorTakesThePlaceOfTheDevice) {
    Inbox inbox;
    connector.addListener(inbox.listener);
    const auto askConfig = [&] { return connector.busyTransaction(std::make_shared<GetConfigMsg>(), 0ms); };
    for (int run = 0; run < 2; ++run) {
        EXPECT_FALSE(connector.isTesting());
        EXPECT_EQ(askConfig(), nullptr);
        connector.startTesting();
        EXPECT_TRUE(connector.isTesting());
        const auto config = askConfig();
        ASSERT_TRUE(config);
        EXPECT_THAT(inbox.take(), ElementsAre(config)) << "each answer once";
        connector.disconnect();
    }
    connector.removeListener(inbox.listener);
    connector.startTesting();
    askConfig();
    EXPECT_THAT(inbox.take(), IsEmpty());
}
