#include "handlers/config-msg-handler.h"

#include "msg/ai-prior-msg.h"
#include "signal-recorder.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

const std::vector<std::string> NOTIFY_BURST = {
    "protoChanged",     "indLedChanged",     "indSndChanged", "indVibroChanged", "indLedLvlChanged",
    "indSndLvlChanged", "stringModeChanged", "modeChanged",   "wifiDetChanged",  "uavDetChanged",
    "rangesChanged",    "hwVersChanged",     "fwVersChanged", "bootVersChanged", "md5SerialChanged",
    "sensChanged",      "attenChanged"};

const std::string CONFIG_TEXT = R"({
"proto" : "K7",
"indLed" : true,
"indSnd" : false,
"indVibro" : true,
"indLedLvl" : 11,
"indSndLvl" : 22,
"mode" : "CONT",
"wifiDet" : true,
"uavDet" : false,
"ranges" : [
"EXT_1200",
"STD_5800"
],
"hwVers" : "h1",
"fwVers" : "f2",
"bootVers" : "b3",
"md5Serial" : "m4",
"atten" : 3,
"type" : "CONFIG"
})";

MsgHolder config() {
    return MsgHolder(Msg::parseJson(CONFIG_TEXT));
}

class ConfigMsgHandlerTest : public testing::Test {
protected:
    ConfigMsgHandlerTest() {
        QObject::connect(&handler, &ConfigMsgHandler::gotMsg, [this](const MsgHolder &holder) {
            sent.push_back(holder.getAs<ConfigMsg>(MsgTypeEnum::CONFIG)->parseMsg());
        });
    }

    ConfigMsgHandler handler;
    SignalRecorder recorder{&handler};
    std::vector<std::string> sent;
};

} // namespace

TEST_F(ConfigMsgHandlerTest, ShowsAnAcceptedConfigAndSendsNothing) {
    EXPECT_EQ(handler.getIndLedLvl(), 75);
    EXPECT_EQ(handler.getIndSndLvl(), 100);
    handler.accept(config());
    EXPECT_THAT(recorder.take(), ElementsAreArray(NOTIFY_BURST));
    const std::vector<std::pair<const char *, QVariant>> shown = {
        {"proto", 2},        {"indLed", true},  {"indSnd", false},   {"indVibro", true},
        {"indLedLvl", 11},   {"indSndLvl", 22}, {"mode", 3},         {"stringMode", "Непрерывный"},
        {"wifiDet", 1},      {"uavDet", 0},     {"hwVers", "h1"},    {"fwVers", "f2"},
        {"bootVers", "b3"},  {"atten", 3},      {"md5Serial", "m4"}, {"sens", "MID"},
        {"enumMode", "CONT"}};
    for (const auto &[name, value] : shown)
        EXPECT_EQ(handler.property(name), value) << name;
    EXPECT_EQ(handler.getRanges(), (QList<int>{1, 6}));
}

TEST_F(ConfigMsgHandlerTest, IgnoresOtherMessages) {
    handler.accept(MsgHolder());
    handler.accept(MsgHolder(std::make_shared<AiPriorMsg>()));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ConfigMsgHandlerTest, SendsAnEditAndThenTellsTheScreens) {
    handler.accept(config());
    recorder.take();
    handler.setIndSnd(true);
    EXPECT_THAT(recorder.take(), IsEmpty());
    emit handler.changed();
    std::vector<std::string> expected = {"gotMsg"};
    expected.insert(expected.end(), NOTIFY_BURST.begin(), NOTIFY_BURST.end());
    expected.push_back("changed"); // told to the recorder behind the handler itself
    EXPECT_THAT(recorder.take(), ElementsAreArray(expected));
    std::string text = CONFIG_TEXT;
    text.replace(text.find("\"indSnd\" : false"), 16, "\"indSnd\" : true");
    EXPECT_THAT(sent, ElementsAre(text));
}

TEST_F(ConfigMsgHandlerTest, SendsNothingBeforeTheDeviceHasToldItsRanges) {
    emit handler.changed();
    handler.setRanges({});
    emit handler.changed();
    EXPECT_THAT(sent, IsEmpty());
    handler.setRanges({2});
    handler.setRanges({});
    EXPECT_EQ(handler.getRanges(), QList<int>{2});
    emit handler.changed();
    EXPECT_EQ(sent.size(), 1u);
}

TEST_F(ConfigMsgHandlerTest, StepsTheSensitivityWithoutSending) {
    handler.nextSens();
    EXPECT_THAT(recorder.take(), ElementsAre("sensChanged"));
    EXPECT_EQ(handler.getSens(), "LOW");
    EXPECT_EQ(handler.getAtten(), 6);
    handler.setAtten(5);
    EXPECT_EQ(handler.getSens(), "???");
}

TEST_F(ConfigMsgHandlerTest, SetsTheModeByItsWireName) {
    handler.accept(config());
    recorder.take();
    handler.setStringMode("eco");
    EXPECT_THAT(recorder.take(), IsEmpty());
    handler.setStringMode("ECO");
    EXPECT_EQ(handler.enumMode(), "ECO");
    EXPECT_EQ(sent.size(), 1u);
}

TEST_F(ConfigMsgHandlerTest, RefusesNumbersThatAreNoEnumerators) {
    EXPECT_THROW(handler.setMode(4), std::out_of_range);
    EXPECT_THROW(handler.setRanges({2, -1}), std::out_of_range);
    EXPECT_EQ(handler.getMode(), 0);
    EXPECT_THAT(handler.getRanges(), IsEmpty());
}
