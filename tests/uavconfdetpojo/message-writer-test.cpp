#include "msg-to-json-parser.h"
#include "msg/all-messages.h"
#include "wire-text.h"

#include <any>
#include <gtest/gtest.h>
#include <json11.hpp>

using MM = MasterFreqModeEnum;

TEST(MessageWriter, WritesWhatIsNoWholeMessage) {
    EXPECT_EQ(MsgToJsonParser::toJson(nullptr), "{}");
    EXPECT_EQ(MsgToJsonParser::toJson(share(MsgBuilder().type(MsgTypeEnum(50)))), "");
    EXPECT_EQ(MsgToJsonParser::toJson(share(MsgBuilder().type(MsgTypeEnum(-1)))), "");
    // The application sends its requests as the base part alone.
    EXPECT_EQ(MsgToJsonParser::toJson(std::make_shared<Msg>(GetConfigMsgBuilder().build())),
              wire(R"({|"type" : "GET_CONFIG"|})"));
    EXPECT_EQ(Msg().parseMsg(), wire("{||}"));
    EXPECT_EQ(MsgBuilder().type(MsgTypeEnum::OK).build().parseMsg(), wire(R"({|"type" : "OK"|})"));
    EXPECT_EQ(FreqScanResult().parseMsg(), wire("{||}"));
}

TEST(MessageWriter, DoesNotEscapeStrings) {
    EXPECT_EQ(SetFactoryMsgBuilder().serial("a\"b\\\n").build().parseMsg(),
              "{\n\"serial\" : \"a\"b\\\n\",\n\"type\" : \"SET_FACTORY\"\n}");
}

TEST(MessageWriter, NullPointersLeaveTheirPlaceEmpty) {
    EXPECT_EQ(ScanResultMsgBuilder().freqs({nullptr, share(FreqScanResultBuilder())}).build().parseMsg(),
              wire(R"({|"freqs" : [|,|{||}|],|"type" : "SCAN_RESULT"|})"));
    EXPECT_EQ(
        StateMsgBuilder().stateRanges({{MM::R_1200, nullptr}, {MM::R_2400, nullptr}}).build().parseMsg(),
        wire(R"({|"stateRanges" : {"R_1200":,|"R_2400":},|"type" : "STATE"|})"));
    EXPECT_EQ(FreqsMsgBuilder().freqList(nullptr).build().parseMsg(),
              wire(R"({|"freqList" : ,|"type" : "FREQS"|})"));
}

TEST(MessageWriter, ParameterThatIsNoJsonIsWrittenEmptyAndReported) {
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
