#include "simulator/test-service.h"

#include "inbox.h"
#include "msg/all-messages.h"
#include "wire-text.h"

#include <gmock/gmock.h>

namespace {

std::shared_ptr<Msg> request(MsgTypeEnum type) {
    return Msg::parseJson(R"({"type":")" + MsgType(type).name() + R"("})");
}

/// The first message of this type that comes after the first `skipped` messages.
template <typename Message>
std::shared_ptr<Message> next(Inbox &inbox, MsgTypeEnum type, std::size_t skipped) {
    for (;; ++skipped) {
        const auto msg = inbox.at<Message>(skipped);
        if (!msg || msg->getType() == type)
            return msg;
    }
}

} // namespace

TEST(TestService, FiresEveryAnswerAndReturnsSome) {
    struct Case {
        MsgTypeEnum request, answer;
        bool returned;
    };
    TestService service;
    Inbox inbox;
    service.addListener(inbox.listener);
    std::size_t count = 0;
    for (const Case &c : {Case{MsgTypeEnum::GET_CONFIG, MsgTypeEnum::CONFIG, true},
                          Case{MsgTypeEnum::SCAN, MsgTypeEnum::OK, true},
                          Case{MsgTypeEnum::CONFIG_K7, MsgTypeEnum::OK, false},
                          Case{MsgTypeEnum::GET_STATE, MsgTypeEnum::STATE, false},
                          Case{MsgTypeEnum::GET_CONFIG_FREQ_CALIB, MsgTypeEnum::FAIL, false}}) {
        SCOPED_TRACE(MsgType(c.request).name());
        const auto returned = service.acceptMsg(request(c.request));
        const auto fired = inbox.at<OkMsg>(count++);
        ASSERT_TRUE(fired);
        EXPECT_EQ(fired->getType(), c.answer);
        EXPECT_EQ(returned, c.returned ? fired : nullptr);
        EXPECT_TRUE(c.answer != MsgTypeEnum::OK || fired->getRespOn() == c.request);
    }
    const auto fail = inbox.at<FailMsg>(count - 1);
    EXPECT_EQ(fail->getRespOn(), MsgTypeEnum::GET_CONFIG_FREQ_CALIB);
    EXPECT_EQ(fail->getFailMsg(), "test not implemented");

    EXPECT_EQ(service.acceptMsg(nullptr), nullptr);
    service.removeListener(inbox.listener);
    service.acceptMsg(request(MsgTypeEnum::GET_STATE));
    EXPECT_EQ(inbox.size(), count);
}

TEST(TestService, KeepsTheSettingsThatItIsSent) {
    TestService service;
    const auto config =
        std::static_pointer_cast<ConfigMsg>(service.acceptMsg(request(MsgTypeEnum::GET_CONFIG)));
    ASSERT_TRUE(config);
    EXPECT_EQ(config->getProto(), ProtoEnum::K7);
    EXPECT_EQ(config->getFwVers() + config->getMd5Serial(), "0.0000000");

    const std::pair<std::shared_ptr<Msg>, MsgTypeEnum> settings[] = {
        {share(ConfigMsgBuilder().atten(3)), MsgTypeEnum::GET_CONFIG},
        {share(AiPriorMsgBuilder().aiPrior(AiPriorEnum::CITY)), MsgTypeEnum::GET_AI_PRIOR},
        {share(ConfigK7MsgBuilder().voiceEn(true)), MsgTypeEnum::GET_CONFIG_K7}};
    for (const auto &[setting, reader] : settings) {
        service.acceptMsg(setting);
        EXPECT_EQ(service.acceptMsg(request(reader)), setting);
    }
}

TEST(TestServiceThreads, ScansAndTurnsTheMask) {
    TestService service;
    Inbox inbox;
    service.addListener(inbox.listener);
    service.acceptMsg(share(ConfigMsgBuilder().proto(ProtoEnum::K7).mode(DetModeEnum::CONT)));
    for (const bool scan : {true, true, false, false}) // the second of each changes nothing
        EXPECT_TRUE(service.acceptMsg(share(ScanMsgBuilder().scan(scan))));
    for (const bool mask : {true, false}) { // first on a stopped scanner, then on one that runs
        const auto before = inbox.size();
        EXPECT_EQ(service.acceptMsg(std::make_shared<SetMaskMsg>()), nullptr);
        const auto result = next<MaskResultMsg>(inbox, MsgTypeEnum::MASK_RESULT, before);
        ASSERT_TRUE(result);
        EXPECT_TRUE(result->getMask());
        const auto scan = next<ScanResultMsg>(inbox, MsgTypeEnum::SCAN_RESULT, inbox.size());
        ASSERT_TRUE(scan);
        EXPECT_EQ(scan->getMask(), mask);
    }
}
