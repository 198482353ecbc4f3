#include "simulator/test-service.h"

#include "common/defaults.h"
#include "msg/fail-msg.h"
#include "msg/mask-result-msg.h"
#include "msg/ok-msg.h"
#include "msg/state-msg.h"

TestService::TestService(Scanner::Pause devicePause)
    : pause(std::move(devicePause))
    , config(Defaults::getDefaultConfigMsg(proto.getValue()))
    , aiPrior(Defaults::getDefaultAiPriorMsg())
    , configK7(Defaults::getDefaultConfigK7Msg())
    , scanner(std::make_shared<MsgListener>([this](const std::shared_ptr<Msg> &msg) { fireMsg(msg); }),
              pause) {
    config->setBootVers("0.0");
    config->setFwVers("0.0");
    config->setHwVers("0.0");
    config->setMd5Serial("000000");
    scanner.setByConfig(config);
    scanner.setByAiPrior(aiPrior);
}

std::shared_ptr<Msg> TestService::acceptMsg(const std::shared_ptr<Msg> &msg) {
    if (!msg)
        return nullptr;
    const MsgTypeEnum type = msg->getType();
    switch (type) {
    case MsgTypeEnum::GET_CONFIG:
        return fireMsg(config);
    case MsgTypeEnum::GET_CONFIG_K7:
        return fireMsg(configK7);
    case MsgTypeEnum::GET_AI_PRIOR:
        return fireMsg(aiPrior);
    case MsgTypeEnum::SCAN:
        return scan(*messageCast<ScanMsg>(msg));
    case MsgTypeEnum::CONFIG:
        config = messageCast<ConfigMsg>(msg);
        scanner.setByConfig(config);
        fireOkMsg(type);
        break;
    case MsgTypeEnum::CONFIG_K7:
        configK7 = messageCast<ConfigK7Msg>(msg);
        fireOkMsg(type);
        break;
    case MsgTypeEnum::AI_PRIOR:
        aiPrior = messageCast<AiPriorMsg>(msg);
        scanner.setByAiPrior(aiPrior);
        fireOkMsg(type);
        break;
    case MsgTypeEnum::GET_STATE:
        fireStateMsg();
        break;
    case MsgTypeEnum::SET_MASK:
        acceptSetMask();
        break;
    default:
        fireMsg(FailMsgBuilder().respOn(type).failMsg("test not implemented").share());
    }
    return nullptr;
}

std::shared_ptr<Msg> TestService::fireMsg(const std::shared_ptr<Msg> &msg) {
    msgListeners.fire([&](const MsgListener &listener) { listener(msg); });
    return msg;
}

std::shared_ptr<Msg> TestService::fireOkMsg(MsgTypeEnum respOn) {
    return fireMsg(OkMsgBuilder().respOn(respOn).share());
}

/// On purpose: the answer is always "mask set", whatever the flag is now. The scans carry the flag itself.
void TestService::acceptSetMask() {
    if (scanner.isActive())
        scanner.stop();
    scanner.setMask();
    pause(MASK_TIME);
    fireMsg(MaskResultMsgBuilder().mask(true).share());
    scanner.start();
}

std::shared_ptr<Msg> TestService::scan(const ScanMsg &msg) {
    if (msg.getScan() && !scanner.isActive())
        scanner.start();
    else if (!msg.getScan() && scanner.isActive())
        scanner.stop();
    return fireOkMsg(MsgTypeEnum::SCAN);
}

void TestService::fireStateMsg() {
    const auto state = StateMsgBuilder()
                           .battLvl(scanner.getRandBattery())
                           .battVoltage(5.0F)
                           .bootload(false)
                           .stateRanges({})
                           .build();
    fireMsg(std::make_shared<StateMsg>(state));
}
