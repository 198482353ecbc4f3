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

/// Checks the table. What a reader left absent is not written again.
TEST(Message, ReaderTakesEachFieldByItsOwnRule) {
    for (const auto &row : rowsOf(TEST_DATA_DIR "/message-fields.tsv")) {
        const std::string &read = row[1], &fields = row[2], type = '"' + row[0] + '"';
        const std::string written = wire("{|" + fields + R"("type" : )" + type + "|}");
        for (const std::string &text : {"{" + read + R"(,"type":)" + type + "}",
                                        R"({"unknown":[{"type":"OK"}],"type":)" + type + "," + read + "}"})
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
