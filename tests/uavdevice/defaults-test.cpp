#include "common/defaults.h"

#include "messages.h"

TEST(Defaults, AreTheFactorySettingsOfEachGeneration) {
    const auto config = [](const std::string &proto, const std::string &ranges) {
        return R"({|"proto" : ")" + proto +
               R"(",|"indLed" : true,|"indSnd" : true,|"indVibro" : false,|"indLedLvl" : 50,|"indSndLvl" : 100)"
               R"(,|"mode" : "BASE",|"wifiDet" : false,|"uavDet" : true,|"ranges" : [|)" +
               ranges + R"("EXT_2400",|"EXT_4900",|"EXT_5800"|],|"atten" : 0,|"type" : "CONFIG"|})";
    };
    const auto target = [](const std::string &min, const std::string &max) {
        return R"({|"freqMin" : )" + min + R"(.000000,|"freqMax" : )" + max +
               R"(.000000,|"sigType" : "ALL",|"timeSecOfDetect" : 10,|"lvlOver" : -95,|"prior" : 0,)"
               R"(|"actType" : "TIMEOUT",|"timeout" : 60,|"ewOutId" : 0,|"ewOutConf" : {}|})";
    };
    const std::string configK7 =
        R"({|"voiceEn" : true,|"dispLvl" : 50,|"dispOffTime" : 30,|"indHeadLvl" : 25,|"indHeadMode" : "SOUND",)"
        R"(|"btEn" : false,|"btPowerDbm" : 0,|"voiceDbLvl" : -97,|"type" : "CONFIG_K7"|})";
    const std::string configEw = R"({|"targets" : [|)" + target("830", "1730") + ",|" +
                                 target("2350", "2550") + ",|" + target("4800", "5460") + ",|" +
                                 target("5470", "6100") + R"(|],|"type" : "CONFIG_EW"|})";
    const std::string aiPrior = R"({|"aiPrior" : "DEFAULT",|"type" : "AI_PRIOR"|})";
    for (const auto &[proto, expected] :
         {std::pair(ProtoEnum::K1, config("K1", "")),
          {ProtoEnum::K6, config("K6", "") + aiPrior},
          {ProtoEnum::K7, config("K7", R"("STD_1200",|)") + configK7 + aiPrior},
          {ProtoEnum::K7EW, config("K7EW", R"("STD_1200",|)") + configK7 + configEw + aiPrior}}) {
        std::string texts;
        for (const auto &message : Defaults::getDefaults(proto))
            texts += MsgToJsonParser::toJson(message);
        EXPECT_EQ(texts, wire(expected));
    }
}
