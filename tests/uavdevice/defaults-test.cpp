#include "common/defaults.h"

#include "common/sens-level.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(Defaults, GiveEachGenerationTheMessagesItHas) {
    const auto typesOf = [](ProtoEnum proto) {
        std::vector<std::string> types;
        for (const auto &message : Defaults::getDefaults(proto))
            types.push_back(MsgType(message->getType()).name());
        return types;
    };
    EXPECT_THAT(typesOf(ProtoEnum::K1), ElementsAre("CONFIG"));
    EXPECT_THAT(typesOf(ProtoEnum::K6), ElementsAre("CONFIG", "AI_PRIOR"));
    EXPECT_THAT(typesOf(ProtoEnum::K7), ElementsAre("CONFIG", "CONFIG_K7", "AI_PRIOR"));
    EXPECT_THAT(typesOf(ProtoEnum::K7EW), ElementsAre("CONFIG", "CONFIG_K7", "CONFIG_EW", "AI_PRIOR"));
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
    const auto rules = Defaults::getDefaultConfigEwMsg(ProtoEnum::K7EW)->getTargets();
    ASSERT_EQ(rules.size(), 4U);
    EXPECT_EQ(rules[1]->parseMsg(),
              "{\n\"freqMin\" : 2350.000000,\n\"freqMax\" : 2550.000000,\n\"sigType\" : \"ALL\",\n"
              "\"timeSecOfDetect\" : 10,\n\"lvlOver\" : -95,\n\"prior\" : 0,\n\"actType\" : \"TIMEOUT\",\n"
              "\"timeout\" : 60,\n\"ewOutId\" : 0,\n\"ewOutConf\" : {}\n}");
    EXPECT_EQ(Defaults::getDefaultAiPriorMsg()->getAiPrior(), AiPriorEnum::DEFAULT);
    EXPECT_EQ(Defaults::getDefaultConfigMsg(ProtoEnum::K7EW)->getRanges().at(0), FreqModeEnum::STD_1200);
}

TEST(LevelTables, FollowTheAttenuationAndMindWhatTheyDoNotHold) {
    using Level = SensLevelEnum;
    for (const auto &[atten, next] :
         {std::pair(6, Level::MIDDLE), {3, Level::HIGH}, {0, Level::LOW}, {5, Level::LOW}})
        EXPECT_EQ(SensLevel(SensLevel::byAtten(atten)).next(), next) << atten;
    EXPECT_EQ(SensLevel(static_cast<Level>(-1)).getEnumName(), "???");
    EXPECT_THROW(SensLevel(static_cast<Level>(4)).getAtten(), std::out_of_range);
}
