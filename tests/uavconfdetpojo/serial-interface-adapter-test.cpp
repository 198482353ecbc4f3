#include "serial-interface-adapter.h"

#include "log.h"
#include "messages.h"
#include "stepped-wait.h"

namespace {

using MsgTypes = std::vector<MsgTypeEnum>;

class Link : public SerialInterfaceAdapter {
public:
    Link() { addListener(collector); }
    std::string getName() override { return "test"; }
    void serialClose() override {}
    bool isClosed() override { return false; }
    void sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) override { onSend(bytes, timeout); }
    Sent sendWithin(const buffer_t &bytes, std::chrono::milliseconds timeout) override {
        SerialInterfaceAdapter::sendWithin(bytes, timeout);
        return sent;
    }
    void transactionGaveUp(const std::shared_ptr<Msg> &msg, Sent, std::chrono::milliseconds) override {
        givenUp.push_back(msg->getType());
    }

    std::function<void(buffer_t, std::chrono::milliseconds)> onSend = [](auto, auto) {};
    Sent sent = Sent::WHOLE;
    MsgTypes givenUp;
    MsgTypes received;
    const std::shared_ptr<MsgListener> collector = std::make_shared<MsgListener>(
        [this](const std::shared_ptr<Msg> &msg) { received.push_back(msg->getType()); });
};

std::shared_ptr<Msg> request() {
    return MsgType(MsgTypeEnum::STATE).getRequestMsg();
}

const std::runtime_error BROKEN("broken");

[[noreturn]] void throwBroken() {
    throw static_cast<const std::exception *>(&BROKEN);
}

} // namespace

TEST(SerialInterfaceAdapter, TransactionTakesMessagesOfTheExpectedTypesOnly) {
    Link link;
    link.onSend = [&](const buffer_t &bytes, std::chrono::milliseconds timeout) {
        EXPECT_EQ(bytes, "{\n\"type\" : \"GET_STATE\"\n}");
        EXPECT_EQ(timeout, 60s);
        link.processNewData(OK), link.processNewData(STATE), link.processNewData(FAIL);
    };
    EXPECT_EQ(link.transaction(request(), 60s, {MsgTypeEnum::OK, MsgTypeEnum::STATE})->getType(),
              MsgTypeEnum::STATE);
    link.onSend = [&](auto, auto) { link.processNewData(STATE), throwBroken(); };
    EXPECT_EQ(printedBy([&] { EXPECT_NE(link.transaction(request(), 1ms, {MsgTypeEnum::STATE}), nullptr); }),
              "[ERROR] [RFD24] transaction 2 send ERROR: broken\n");
    link.onSend = [&](auto, auto timeout) { throw timeout; };
    EXPECT_THROW(link.transaction(request(), 1ms, MsgType::values()), std::chrono::milliseconds);
    link.processNewData(STATE); // no listener of the ended transactions gets it
    EXPECT_EQ(link.received.size(), 5u);
}

TEST(SerialInterfaceAdapterThreads, TransactionWaitsForAReplyFromWhenItsRequestHasLeft) {
    Link link;
    std::future<void> device;
    link.onSend = [&](auto, auto timeout) {
        std::this_thread::sleep_for(timeout);
        device = meanwhile([&] {
            std::this_thread::sleep_for(50ms);
            link.processNewData(STATE);
        });
    };
    EXPECT_NE(link.transaction(request(), 500ms, MsgType::values()), nullptr);
    EXPECT_EQ(link.givenUp, MsgTypes{});
    link.onSend = [&](auto, auto) { link.processNewData(OK); };
    for (const Sent sent : {Sent::PART, Sent::NOTHING}) {
        link.sent = sent;
        EXPECT_EQ(link.transaction(request(), 24h, {MsgTypeEnum::OK}), nullptr) << "what comes is no reply";
        EXPECT_EQ(link.transaction(request(), 24h, {MsgTypeEnum::STATE}), nullptr) << "at once";
    }
    EXPECT_EQ(link.givenUp, MsgTypes(4, MsgTypeEnum::GET_STATE));
    EXPECT_EQ(link.received.back(), MsgTypeEnum::OK) << "heard like any message";
}

TEST(SerialInterfaceAdapter, ErrorsOfListenersAndOfTheLink) {
    struct Errors : OnErrorListener {
        explicit Errors(Link &on)
            : link(on) {}
        void onError(const std::exception *error) override { texts += error->what() + link.getRecvBuffer(); }
        Link &link;
        std::string texts;
    };
    Link link;
    link.addListener(std::make_shared<MsgListener>([](auto) { throwBroken(); }));
    link.removeListener(link.collector);
    link.addListener(link.collector);
    EXPECT_EQ(printedBy([&] { link.processNewData(OK + "\"{"); }),
              "[ERROR] [RFD24] listener error: broken\n");
    const auto errors = std::make_shared<Errors>(link);
    link.addOnErrorListener(errors);
    link.setIoLogger(std::make_shared<IoLogger>(
        [&](const std::string &text) { errors->texts += text + '|' + link.getRecvBuffer() + '|'; }));
    link.processNewData(" \"");
    link.fireError(&BROKEN);
    const std::string bytes = OK + "\"{ \"";
    EXPECT_EQ(errors->texts, " \"|" + bytes + "|broken" + bytes + "<<<error: broken>>>\n||");
    link.setIoLogger(nullptr);
    link.removeOnErrorListener(errors);
    link.fireError(&BROKEN);
    EXPECT_EQ(errors->texts.size(), 66U) << "both logs have ended";
    EXPECT_EQ(link.getRecvBuffer(), "");
    printedBy([&] { link.processNewData(STATE); });
    EXPECT_EQ(link.received, (MsgTypes{MsgTypeEnum::OK, MsgTypeEnum::STATE}));
}

TEST(Log, WritesEachLineAtOnce) {
    const auto logAndDie = [] { Log::write("tag", "text"), std::_Exit(0); };
    EXPECT_EQ(printedBy([&] { EXPECT_EXIT(logAndDie(), ExitedWithCode(0), ""); }), "[tag] text\n");
}

TEST(SerialInterfaceAdapterThreads, ASinkOfTheLogMayAskTheLink) {
    Link link;
    std::string seen;
    Log::setSink([&](const std::string &line) {
        meanwhile([&] { seen += line + "|" + link.getRecvBuffer() + "|"; }).get();
        link.setIoLogger(link.getIoLogger());
    });
    link.processNewData("{}");
    Log::setSink(nullptr);
    EXPECT_EQ(seen, "[RFD24] received unknown msg: {}||");
}

TEST(SerialInterfaceAdapterThreads, EachCallMayGoBeforeOrFollowTheReadingThread) {
    Link link;
    const auto read = [&] { link.processNewData(OK); };
    const auto log = [&] { link.setIoLogger(nullptr); };
    const std::function<void()> calls[] = {log, [&] { link.getIoLogger(); }, [&] { link.getRecvBuffer(); },
                                           [&] { link.waitEmptyBuffer(); }, [&] { link.fireError(&BROKEN); }};
    for (const auto &call : calls)
        for (const auto &other : {std::function<void()>(read), std::function<void()>(log)}) {
            inOrder(other, call);
            inOrder(call, other);
        }
}

/// It would be lost if the wait did not hold a lock from its look at the result on.
TEST(SerialInterfaceAdapterThreads, AReplyMayComeBetweenTheLookForItAndTheWait) {
    Link link;
    std::future<void> device;
    const SteppedWait step([&] {
        device = meanwhile([&] { link.processNewData(STATE); });
        EXPECT_EQ(device.wait_for(50ms), std::future_status::timeout) << "nobody waits yet";
    });
    EXPECT_NE(link.transaction(request(), 24h, {MsgTypeEnum::STATE}), nullptr);
}

TEST(SerialInterfaceAdapterThreads, AWaitForTheEndOfAMessageEndsWithIt) {
    Link link;
    link.waitEmptyBuffer();
    link.processNewData("{");
    std::atomic<bool> hasEnded{false};
    const auto waiting = meanwhile([&] {
        link.waitEmptyBuffer();
        EXPECT_TRUE(hasEnded);
    });
    std::this_thread::sleep_for(20ms); // or there is less to see
    hasEnded = true;
    link.processNewData("}");
}
