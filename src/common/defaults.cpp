#include "defaults.h"

namespace {

std::vector<FreqModeEnum> defaultRanges(ProtoEnum proto) {
    using FM = FreqModeEnum;
    switch (proto) {
    case ProtoEnum::K1:
    case ProtoEnum::K6:
        return {FM::EXT_2400, FM::EXT_4900, FM::EXT_5800};
    case ProtoEnum::K7:
    case ProtoEnum::K7EW:
        return {FM::STD_1200, FM::EXT_2400, FM::EXT_4900, FM::EXT_5800};
    }
    return {};
}

} // namespace

std::shared_ptr<ConfigMsg> Defaults::getDefaultConfigMsg(ProtoEnum proto) {
    return ConfigMsgBuilder()
        .proto(proto)
        .indLed(true)
        .indSnd(true)
        .indVibro(false)
        .indLedLvl(50)
        .indSndLvl(100)
        .mode(DetModeEnum::BASE)
        .wifiDet(false)
        .uavDet(true)
        .ranges(defaultRanges(proto))
        .atten(0)
        .share();
}

std::shared_ptr<AiPriorMsg> Defaults::getDefaultAiPriorMsg() {
    return AiPriorMsgBuilder().aiPrior(AiPriorEnum::DEFAULT).share();
}

std::shared_ptr<ConfigK7Msg> Defaults::getDefaultConfigK7Msg() {
    // On purpose: the screens do not offer this voice level, so they show no level as chosen.
    return ConfigK7MsgBuilder()
        .voiceEn(true)
        .dispLvl(50)
        .dispOffTime(30)
        .indHeadLvl(25)
        .indHeadMode(HeadModeEnum::SOUND)
        .btEn(false)
        .btPowerDbm(0)
        .voiceDbLvl(-97)
        .share();
}

std::shared_ptr<ConfigEwMsg> Defaults::getDefaultConfigEwMsg(ProtoEnum proto) {
    std::vector<std::shared_ptr<EwTarget>> targets;
    for (const MasterFreqModeEnum band : Proto(proto).getMasterModes()) {
        const FreqMode widest = MasterFreqMode(band).getWidestRange();
        targets.push_back(EwTargetBuilder()
                              .freqMax(widest.getMaxFreq())
                              .freqMin(widest.getMinFreq())
                              .sigType(SigTypeEnum::ALL)
                              .timeSecOfDetect(10)
                              .lvlOver(-95)
                              .prior(0)
                              .actType(EwActivateEnum::TIMEOUT)
                              .timeout(60)
                              .ewOutId(0)
                              .ewOutConf({})
                              .share());
    }
    return ConfigEwMsgBuilder().targets(targets).share();
}

std::vector<std::shared_ptr<Msg>> Defaults::getDefaults(ProtoEnum proto) {
    std::vector<std::shared_ptr<Msg>> messages;
    const auto has = [proto](MsgTypeEnum type) { return proto >= MsgType(type).getSinceProto(); };
    if (has(MsgTypeEnum::CONFIG))
        messages.push_back(getDefaultConfigMsg(proto));
    if (has(MsgTypeEnum::CONFIG_K7))
        messages.push_back(getDefaultConfigK7Msg());
    if (has(MsgTypeEnum::CONFIG_EW))
        messages.push_back(getDefaultConfigEwMsg(proto));
    if (has(MsgTypeEnum::AI_PRIOR))
        messages.push_back(getDefaultAiPriorMsg());
    return messages;
}
