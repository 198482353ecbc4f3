#include "comma-locale.h"
#include "msg-to-json-parser.h"
#include "msg/all-messages.h"
#include "wire-text.h"

#include <fstream>
#include <gtest/gtest.h>
#include <json11.hpp>
#include <map>

namespace {

using MM = MasterFreqModeEnum;

/// The objects in the JSON blocks of the protocol's page, to the byte.
std::vector<std::string> examples() {
    std::vector<std::string> objects;
    std::ifstream page(DOCS_DIR "/protocol.md");
    bool inside = false;
    for (std::string line; std::getline(page, line);) {
        if (line.rfind("```", 0) == 0)
            inside = line == "```json";
        else if (inside && line == "{" &&
                 (objects.empty() || objects.back().substr(objects.back().size() - 2) == "\n}"))
            objects.push_back(line);
        else if (inside)
            objects.back() += '\n' + line;
    }
    return objects;
}

/// A message of each type that has fields, with the values of the page's first example.
std::vector<std::shared_ptr<Msg>> builtMessages() {
    const auto wifi = share(FreqScanResultBuilder().freqMHz(2412).rssi(-73.5f).type(SigTypeEnum::WIFI));
    const auto none =
        share(FreqScanResultBuilder().freqMHz(5800).rssi(-105).visible(true).type(SigTypeEnum::NONE));
    const auto calib = share(FreqCalibBuilder().freqsMHz({5725, 5850}).fLvls({-60, -58}));
    const auto power = share(ConfParamBuilder()
                                 .name("power")
                                 .descRu("Мощность")
                                 .type(ConfParamTypeEnum::NUMBER)
                                 .numMin(-0.1)
                                 .numMax(33));
    const auto label = share(
        ConfParamBuilder().name("label").descRu("Метка").type(ConfParamTypeEnum::STRING).strRegex("[A-Z]+"));
    const auto output =
        share(EwOutputBuilder().id(1).desc("Amplifier").descRu("Усилитель").params({power, label}));
    const auto hot = share(EwOutputStateBuilder().id(1).state(EwStateEnum::ERROR).stateMsg("overheated"));
    const auto rule = share(EwTargetBuilder()
                                .freqMin(830)
                                .freqMax(1730)
                                .sigType(SigTypeEnum::ALL)
                                .timeSecOfDetect(10)
                                .lvlOver(-95)
                                .prior(1)
                                .actType(EwActivateEnum::TIMEOUT)
                                .timeout(60)
                                .ewOutId(2)
                                .ewOutConf({{"power", json11::Json(0.5)}, {"label", json11::Json("A")}}));
    const json11::Json steps = json11::Json::array{1, json11::Json::object{{"at", 2}}};
    const std::string md5 = "9e107d9d372bb6826bd81d3542a419d6";
    return {
        share(OkMsgBuilder().respOn(MsgTypeEnum::CONFIG)),
        share(FailMsgBuilder().respOn(MsgTypeEnum::GET_CONFIG_RANGES).failMsg("not implemented")),
        share(ScanMsgBuilder().scan(true)),
        share(ScanResultMsgBuilder().freqs({wifi, none}).mask(false).maskedModes({MM::R_4900, MM::R_5800})),
        share(FreqsMsgBuilder().freqList(share(FreqListBuilder().freqs({2400, 2406.5f})))),
        share(MaskResultMsgBuilder().mask(true)),
        share(SetMaskRangesMsgBuilder().maskedModes({MM::R_5800, MM::R_1200})),
        share(StateMsgBuilder().battLvl(64).battVoltage(3.75f).bootload(false).stateRanges(
            {{MM::R_5800, share(StateRangeBuilder().overflow(true).rew(false))},
             {MM::R_1200, share(StateRangeBuilder().overflow(false).rew(true))}})),
        share(ConfigMsgBuilder()
                  .proto(ProtoEnum::K7)
                  .indLed(true)
                  .indSnd(false)
                  .indVibro(true)
                  .indLedLvl(40)
                  .indSndLvl(100)
                  .mode(DetModeEnum::ECO)
                  .wifiDet(false)
                  .uavDet(true)
                  .ranges({FreqModeEnum::STD_1200, FreqModeEnum::EXT_2400})
                  .hwVers("7.1")
                  .fwVers("2.03")
                  .bootVers("1.0")
                  .md5Serial(md5)
                  .atten(3)),
        share(ConfigK7MsgBuilder()
                  .voiceEn(true)
                  .dispLvl(70)
                  .dispOffTime(45)
                  .indHeadLvl(25)
                  .indHeadMode(HeadModeEnum::EW_CONTROL)
                  .btEn(false)
                  .btPowerDbm(-4)
                  .voiceDbLvl(-88)),
        share(StateK7MsgBuilder().btConnect(true).btMac("00:1B:44:11:3A:B7")),
        share(BluetoothMacMsgBuilder().mac("00:1B:44:11:3A:B7")),
        share(ConfigRangesMsgBuilder().cfgRanges({{MM::R_4900, share(FreqModeSettingBuilder().refLvl(-5))},
                                                  {MM::R_2400, share(FreqModeSettingBuilder().refLvl(42))}})),
        share(ConfigFreqCalibMsgBuilder().freqModesCalib({{MM::R_5800, calib}})),
        share(FreqRangeAttenMsgBuilder().attens({{MM::R_5800, 12}, {MM::R_1200, 0}})),
        share(AiPriorMsgBuilder().aiPrior(AiPriorEnum::CITY)),
        share(AiModeMsgBuilder().ai_mode(true).freqMin(2400).freqMax(2483.5f)),
        share(AiDataMsgBuilder().freqMHz(2437).ai_res(SigTypeEnum::DIG).cnt(2).data({12, -7, 40})),
        share(SdrModeMsgBuilder().freqMHz(5745).count(1024)),
        share(SdrDataMsgBuilder().freqMHz(5745).data({-2147483647, 0})),
        share(EwHardwareMsgBuilder().outs({output})),
        share(ConfigEwMsgBuilder().targets({rule})),
        share(SwitchEwOutputMsgBuilder().id(1).on(true).conf({{"steps", steps}, {"label", json11::Json()}})),
        share(EwOutputStatesMsgBuilder().outStates({hot})),
        share(StartFlashingBuilder().md5File(md5)),
        share(WriteFlashMsgBuilder().b64Buffer("VmVzcGVy")),
        share(SetFactoryMsgBuilder().serial("K7-00042")),
        share(VersMsgBuilder().hwVers("7.1").fwVers("2.03").bootVers("1.0")),
        share(TestOutsMsgBuilder().led(true).vibro(false).snd(true)),
        share(WriteExtMemoryMsgBuilder().offset(5000000000).data("")),
        share(UsbNodeInitMsgBuilder().init(true)),
    };
}

void expectPageAndLibraryAgree() {
    std::map<MsgTypeEnum, std::string> firstOfType;
    for (const std::string &example : examples()) {
        const std::shared_ptr<Msg> msg = Msg::parseJson(example);
        ASSERT_NE(msg, nullptr) << example;
        EXPECT_EQ(MsgToJsonParser::toJson(msg), example);
        firstOfType.emplace(msg->getType(), example);
    }
    EXPECT_EQ(firstOfType.size(), MsgType::values().size()) << "every type has an example";
    for (const std::shared_ptr<Msg> &msg : builtMessages())
        EXPECT_EQ(MsgToJsonParser::toJson(msg), firstOfType[msg->getType()]);
}

} // namespace

TEST(ProtocolPage, ShowsWhatTheLibraryWritesAndReads) {
    EXPECT_EQ(builtMessages().size(), 31u) << "the other 19 types have no fields";
    expectPageAndLibraryAgree();
}

TEST(ProtocolPage, HoldsWhateverTheLocaleOfTheUser) {
    for (const char *name : {"de_DE.UTF-8", "ru_RU.UTF-8"}) {
        const CommaLocale locale(name);
        expectPageAndLibraryAgree();
    }
}
