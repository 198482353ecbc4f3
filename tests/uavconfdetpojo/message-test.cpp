#include "messages.h"
#include "utils.h"

#include <json11.hpp>

using MM = MasterFreqModeEnum;

TEST(Message, TextThatIsNoKnownMessageGivesNull) {
    for (const char *text :
         {"", "[]", "{}", R"([{"type":"OK"}])", R"({"type":5})", R"({"type":"config"})",
          R"({"type":"OK"}{"type":"OK"})", R"({"type":"OK",})", R"({"type":"OK"/**/})", R"({"type":"OK")"})
        EXPECT_EQ(Msg::parseJson(text), nullptr) << text;
    EXPECT_NE(Msg::parseJson(" {\"type\":\"OK\"} \r\n\t"), nullptr);
}

/// Fields in a text of the type, and the text that is written again. A field that the reader left absent is
/// missing there.
TEST(Message, ReaderTakesEachFieldByItsOwnRule) {
    struct Case {
        std::string type;
        std::string read;
        std::string written;
    };
    const std::string most = "9223372036854775807", least = "-9223372036854775808";
    for (const Case &c : {
             Case{"CONFIG", R"("hwVers":5,"fwVers":null,"bootVers":"\u0041\"\/")", R"("bootVers" : "A"/",|)"},
             Case{"CONFIG", R"("indLed":1,"indSnd":"true","wifiDet":false)", R"("wifiDet" : false,|)"},
             Case{"CONFIG", R"("indLedLvl":3.9,"indSndLvl":"7","atten":-3.9,"new":{"atten":1})",
                  R"("indLedLvl" : 3,|"atten" : -3,|)"},
             Case{"CONFIG", R"("proto":"k7","mode":2,"ranges":["STD_2400",7,"STD_3300",null,"EXT_1200"])",
                  R"("ranges" : [|"STD_2400",|"EXT_1200"|],|)"},
             Case{"CONFIG", R"("ranges":"STD_2400")", R"("ranges" : [||],|)"},
             Case{"SDR_DATA", R"("data":[1,"2",3.7,null])", R"("data" : [|1,|3|],|)"},
             Case{"FREQS", R"("freqList":[5])", ""},
             Case{"FREQS", R"("freqList":{"freqs":[2400,"5",0.0000004,-1.5]})",
                  R"("freqList" : {|"freqs" : [|2400.000000,|0.000000,|-1.500000|]|},|)"},
             Case{"STATE", R"("battVoltage":2400.1,"stateRanges":5)", R"("battVoltage" : 2400.100098,|)"},
             Case{"STATE", R"("stateRanges":{"R_1300":{},"R_1200":1})", R"("stateRanges" : {},|)"},
             Case{"STATE", R"("stateRanges":{"R_4900":{"rew":true},"R_2400":{}})",
                  R"("stateRanges" : {"R_2400":{||},|"R_4900":{|"rew" : true|}},|)"},
             Case{"FREQ_RANGE_ATTEN", R"("attens":{"R_5800":"1","R_2400":3.7,"ALL":5})",
                  R"("attens" : {"R_2400":3},|)"},
             Case{"SCAN_RESULT", R"("freqs":[1,{"freqMHz":900},[],{"type":"UFO"}])",
                  R"("freqs" : [|{|"freqMHz" : 900.000000|},|{||}|],|)"},
             Case{"CONFIG_EW",
                  R"("targets":[{"ewOutConf":[],"prior":2},{"ewOutConf":{"b":{"x":[1,{}]},"a":"y"}}])",
                  R"("targets" : [|{|"prior" : 2|},|{|"ewOutConf" : {"a":"y",|"b":{"x": [1, {}]}}|}|],|)"},
             Case{"WRITE_EXT_MEM", R"("offset":4096.9)", R"("offset" : 4096,|)"},
             Case{"WRITE_EXT_MEM", R"("offset":9223372036854775808)", R"("offset" : )" + most + ",|"},
             Case{"WRITE_EXT_MEM", R"("offset":-1e300)", R"("offset" : )" + least + ",|"},
             Case{"TO_BOOTLOAD", R"("led":true)", ""},
             Case{"CONFIG", R"("atten":99999999999,"indLedLvl":-99999999999)",
                  R"("indLedLvl" : -2147483648,|"atten" : 2147483647,|)"},
             // A zero keeps its sign in a message's own fields and loses it inside a nested value.
             Case{"STATE", R"("battVoltage":-0.0)", R"("battVoltage" : -0.000000,|)"},
             Case{"FREQS", R"("freqList":{"freqs":[-0.0,-1]})",
                  R"("freqList" : {|"freqs" : [|0.000000,|-1.000000|]|},|)"},
             Case{"SCAN_RESULT", R"("freqs":[{"rssi":-0.0}])", R"("freqs" : [|{|"rssi" : 0.000000|}|],|)"},
             Case{"CONFIG_EW", R"("targets":[{"ewOutConf":{"a":[-0.0,{"b":-0.0}]}}])",
                  R"("targets" : [|{|"ewOutConf" : {"a":[0, {"b": 0}]}|}|],|)"},
             Case{"SWITCH_EW_OUTPUT", R"("conf":{"a":-0.0})", R"("conf" : {"a":-0},|)"},
         }) {
        const std::string type = '"' + c.type + '"';
        const std::string written = wire("{|" + c.written + R"("type" : )" + type + "|}");
        for (const std::string &text : {"{" + c.read + R"(,"type":)" + type + "}",
                                        R"({"unknown":[{"type":"OK"}],"type":)" + type + "," + c.read + "}"})
            EXPECT_EQ(MsgToJsonParser::toJson(Msg::parseJson(text)), written) << text;
    }
}

TEST(Message, GettersGiveWhatWasRead) {
    const auto read = AiDataMsg::parseJson(R"({"type":"OK","freqMHz":2400.5,"ai_res":"DIG","data":[1,2]})");
    EXPECT_EQ(read->getType(), MsgTypeEnum::AI_DATA) << "the class's own reader ignores the type";
    const auto data = messageCast<AiDataMsg>(read);
    EXPECT_EQ(messageCast<AiModeMsg>(read), nullptr);
    EXPECT_EQ(messageCast<AiModeMsg>(nullptr), nullptr);
    EXPECT_EQ(data->getFreqMHz(), 2400.5f);
    EXPECT_EQ(data->getAi_res(), SigTypeEnum::DIG);
    EXPECT_THAT(data->getData(), ElementsAre(1, 2));
    EXPECT_EQ(FreqScanResult::parseJson("[]"), nullptr);
}

TEST(Message, SetterMarksAndRemoverUnmarks) {
    ConfigMsg config;
    config.setAtten(-3);
    config.setRanges({});
    const ConfigMsg copy = config;
    config.removeAtten();
    config.removeRanges();
    EXPECT_EQ(config.getAtten(), 0);
    EXPECT_EQ(config.parseMsg(), wire(R"({|"type" : "CONFIG"|})"));
    EXPECT_EQ(copy.parseMsg(), wire(R"({|"ranges" : [||],|"atten" : -3,|"type" : "CONFIG"|})"));

    OkMsg ok;
    ok.removeType();
    EXPECT_EQ(ok.parseMsg(), wire(R"({|"type" : "CONFIG"|})")) << "a message ends with its type in any case";
}

TEST(Message, BuilderOperationsReturnCopies) {
    ConfigK7MsgBuilder builder;
    const ConfigK7MsgBuilder chained = builder.dispLvl(5).btEn(true);
    EXPECT_EQ(builder.build().parseMsg(), wire(R"({|"dispLvl" : 5,|"type" : "CONFIG_K7"|})"));
    EXPECT_EQ(chained.build().parseMsg(), wire(R"({|"dispLvl" : 5,|"btEn" : true,|"type" : "CONFIG_K7"|})"));
}

TEST(FreqList, MadeFromAVectorHoldsThePlanButDoesNotWriteIt) {
    for (const FreqList &list : {FreqList({2400, 2406}), FreqListBuilder({2400, 2406}).build()}) {
        EXPECT_THAT(list.getFreqs(), ElementsAre(2400, 2406));
        EXPECT_EQ(list.parseMsg(), wire("{||}"));
    }
    EXPECT_THAT(FreqList().getFreqs(), IsEmpty());
    EXPECT_EQ(FreqListBuilder({2400}).freqs({5}).build().parseMsg(), wire(R"({|"freqs" : [|5.000000|]|})"));
}

TEST(Utils, ListGettersNeedTheirKey) {
    EXPECT_THROW(Utils::getIntVec("data", {}), std::out_of_range);
    EXPECT_EQ(Utils::getDoubleField("data", {{"data", json11::Json(INFINITY)}}), std::nullopt);
}

TEST(Message, WritesWhatIsNoWholeMessage) {
    EXPECT_EQ(MsgToJsonParser::toJson(nullptr), "{}");
    EXPECT_EQ(MsgToJsonParser::toJson(MsgBuilder().type(MsgTypeEnum(50)).share()), "");
    EXPECT_EQ(MsgToJsonParser::toJson(MsgBuilder().type(MsgTypeEnum(-1)).share()), "");
    // The application's requests have only the base part.
    EXPECT_EQ(MsgToJsonParser::toJson(std::make_shared<Msg>(GetConfigMsgBuilder().build())),
              wire(R"({|"type" : "GET_CONFIG"|})"));
    EXPECT_EQ(Msg().parseMsg(), wire("{||}"));
    EXPECT_EQ(MsgBuilder().type(MsgTypeEnum::OK).build().parseMsg(), wire(R"({|"type" : "OK"|})"));
    EXPECT_EQ(FreqScanResult().parseMsg(), wire("{||}"));
}

TEST(Message, DoesNotEscapeStrings) {
    EXPECT_EQ(SetFactoryMsgBuilder().serial("a\"b\\\n").build().parseMsg(),
              "{\n\"serial\" : \"a\"b\\\n\",\n\"type\" : \"SET_FACTORY\"\n}");
}

TEST(Message, NullPointersLeaveTheirPlaceEmpty) {
    EXPECT_EQ(ScanResultMsgBuilder().freqs({nullptr, FreqScanResultBuilder().share()}).build().parseMsg(),
              wire(R"({|"freqs" : [|,|{||}|],|"type" : "SCAN_RESULT"|})"));
    EXPECT_EQ(
        StateMsgBuilder().stateRanges({{MM::R_1200, nullptr}, {MM::R_2400, nullptr}}).build().parseMsg(),
        wire(R"({|"stateRanges" : {"R_1200":,|"R_2400":},|"type" : "STATE"|})"));
    EXPECT_EQ(FreqsMsgBuilder().freqList(nullptr).build().parseMsg(),
              wire(R"({|"freqList" : ,|"type" : "FREQS"|})"));
}

TEST(Message, ParameterThatIsNoJsonIsWrittenEmptyAndReported) {
    const ParamValues conf{{"a", 5}, {"b", json11::Json(5)}, {"c", std::any()}};
    const std::string entries = wire(R"({"a":,|"b":5,|"c":})");
    testing::internal::CaptureStdout();
    EXPECT_EQ(SwitchEwOutputMsgBuilder().conf(conf).build().parseMsg(),
              wire(R"({|"conf" : )") + entries + wire(R"(,|"type" : "SWITCH_EW_OUTPUT"|})"));
    EXPECT_EQ(EwTargetBuilder().ewOutConf(conf).build().parseMsg(),
              wire(R"({|"ewOutConf" : )") + entries + "\n}");
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "bad any cast\nbad any cast\nbad any cast\nbad any cast\n");
}
