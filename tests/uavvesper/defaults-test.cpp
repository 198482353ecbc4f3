#include "common/defaults.h"
#include "common/sens-level.h"
#include "common/sig-type-colors.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

std::vector<MsgTypeEnum> typesOf(const std::vector<std::shared_ptr<Msg>> &messages) {
    std::vector<MsgTypeEnum> types;
    for (const auto &message : messages)
        types.push_back(message->getType());
    return types;
}

} // namespace

TEST(Defaults, GiveEachGenerationTheMessagesItHas) {
    using Type = MsgTypeEnum;
    EXPECT_THAT(typesOf(Defaults::getDefaults(ProtoEnum::K1)), ElementsAre(Type::CONFIG));
    EXPECT_THAT(typesOf(Defaults::getDefaults(ProtoEnum::K6)), ElementsAre(Type::CONFIG, Type::AI_PRIOR));
    EXPECT_THAT(typesOf(Defaults::getDefaults(ProtoEnum::K7)),
                ElementsAre(Type::CONFIG, Type::CONFIG_K7, Type::AI_PRIOR));
}

TEST(Defaults, AreTheFactorySettings) {
    EXPECT_EQ(Defaults::getDefaultConfigMsg(ProtoEnum::K6)->parseMsg(),
              "{\n\"proto\" : \"K6\",\n\"indLed\" : true,\n\"indSnd\" : true,\n\"indVibro\" : false,\n"
              "\"indLedLvl\" : 50,\n\"indSndLvl\" : 100,\n\"mode\" : \"BASE\",\n\"wifiDet\" : false,\n"
              "\"uavDet\" : true,\n\"ranges\" : [\n\"EXT_2400\",\n\"EXT_4900\",\n\"EXT_5800\"\n],\n"
              "\"atten\" : 0,\n\"type\" : \"CONFIG\"\n}");
    EXPECT_EQ(Defaults::getDefaultConfigK7Msg()->parseMsg(),
              "{\n\"voiceEn\" : true,\n\"dispLvl\" : 50,\n\"dispOffTime\" : 30,\n\"indHeadLvl\" : 25,\n"
              "\"indHeadMode\" : \"SOUND\",\n\"btEn\" : false,\n\"btPowerDbm\" : 0,\n\"voiceDbLvl\" : -97,\n"
              "\"type\" : \"CONFIG_K7\"\n}");
    EXPECT_EQ(Defaults::getDefaultAiPriorMsg()->getAiPrior(), AiPriorEnum::DEFAULT);
    using FM = FreqModeEnum;
    EXPECT_THAT(Defaults::getDefaultConfigMsg(ProtoEnum::K7EW)->getRanges(),
                ElementsAre(FM::STD_1200, FM::EXT_2400, FM::EXT_4900, FM::EXT_5800));
}

TEST(SensLevel, FallsAsTheAttenuationRises) {
    using Level = SensLevelEnum;
    for (const auto &[atten, level] :
         {std::pair(6, Level::LOW), {3, Level::MIDDLE}, {0, Level::HIGH}, {5, Level::UNKNOWN}})
        EXPECT_EQ(SensLevel::byAtten(atten), level) << atten;
    EXPECT_EQ(SensLevel(Level::LOW).getAtten(), 6);
    EXPECT_EQ(SensLevel(Level::MIDDLE).getEnumName(), "MID");
    EXPECT_EQ(SensLevel(Level::HIGH).getViewName(), "Высок");

    EXPECT_EQ(SensLevel(Level::UNKNOWN).next(), Level::LOW);
    EXPECT_EQ(SensLevel(Level::HIGH).next(), Level::LOW);

    const SensLevel foreign(static_cast<Level>(-1));
    EXPECT_EQ(foreign.getEnumName(), "???");
    EXPECT_THROW(foreign.getAtten(), std::out_of_range);
}

TEST(SigTypeColors, HaveAColourForEachClassAndNoneForOthers) {
    EXPECT_EQ(SigTypeColors::getColor(SigTypeEnum::FPV), QColor(255, 0, 0));
    EXPECT_EQ(SigTypeColors::getColor(SigTypeEnum::ALL), SigTypeColors::getColor(SigTypeEnum::NONE));
    EXPECT_EQ(SigTypeColors::getColor(static_cast<SigTypeEnum>(6)).alpha(), 0);
}
