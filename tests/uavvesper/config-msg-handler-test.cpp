#include "handlers/config-msg-handler.h"

#include "messages.h"
#include "signal-recorder.h"

#include <gtest/gtest.h>

static const std::string NOTIFY_BURST =
    "protoChanged indLedChanged indSndChanged indVibroChanged indLedLvlChanged indSndLvlChanged "
    "stringModeChanged modeChanged wifiDetChanged uavDetChanged rangesChanged hwVersChanged fwVersChanged "
    "bootVersChanged md5SerialChanged sensChanged attenChanged";

static const std::string CONFIG =
    "{\n\"proto\" : \"K7\",\n\"indLed\" : true,\n\"indSnd\" : false,\n\"indVibro\" : true,\n"
    "\"indLedLvl\" : 11,\n\"indSndLvl\" : 22,\n\"mode\" : \"CONT\",\n\"wifiDet\" : true,\n"
    "\"uavDet\" : false,\n\"ranges\" : [\n\"EXT_1200\",\n\"STD_5800\"\n],\n\"hwVers\" : \"h1\",\n"
    "\"fwVers\" : \"f2\",\n\"bootVers\" : \"b3\",\n\"md5Serial\" : \"m4\",\n\"atten\" : 3,\n"
    "\"type\" : \"CONFIG\"\n}";

class ConfigMsgHandlerTest : public testing::Test {
protected:
    ConfigMsgHandler handler;
    SignalRecorder recorder{&handler};
    SentTexts sent{handler};
};

TEST_F(ConfigMsgHandlerTest, ShowsWhatItHasAndWhatItAccepts) {
    handler.nextSens();
    EXPECT_EQ(recorder.take(), "sensChanged");
    EXPECT_EQ(handler.getSens(), "LOW");
    EXPECT_EQ(handler.getAtten(), 6);
    EXPECT_EQ(handler.getIndLedLvl(), 75);
    EXPECT_EQ(handler.getIndSndLvl(), 100);
    handler.accept(held(CONFIG));
    EXPECT_EQ(recorder.take(), NOTIFY_BURST);
    const std::vector<std::pair<const char *, QVariant>> shown = {
        {"proto", 2},      {"indLed", true},   {"indSnd", false}, {"indVibro", true},
        {"indLedLvl", 11}, {"indSndLvl", 22},  {"mode", 3},       {"stringMode", "Непрерывный"},
        {"wifiDet", 1},    {"uavDet", 0},      {"hwVers", "h1"},  {"fwVers", "f2"},
        {"atten", 3},      {"bootVers", "b3"}, {"sens", "MID"},   {"enumMode", "CONT"}};
    for (const auto &[name, value] : shown)
        EXPECT_EQ(handler.property(name), value) << name;
    EXPECT_EQ(handler.getRanges(), (QList<int>{1, 6}));
    handler.accept(MsgHolder());
    handler.accept(held(R"({"type":"CONFIG_K7"})"));
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(ConfigMsgHandlerTest, SendsAnEditAndThenTellsTheScreens) {
    handler.accept(held(CONFIG));
    recorder.take();
    handler.setIndLedLvl(12);
    EXPECT_EQ(recorder.take(), "");
    emit handler.changed();
    EXPECT_EQ(recorder.take(), "gotMsg " + NOTIFY_BURST + " changed") << "the handler hears changed first";
    std::string edited = CONFIG;
    EXPECT_EQ(sent.back(), edited.replace(edited.find("11"), 2, "12"));
}

TEST_F(ConfigMsgHandlerTest, SendsNothingBeforeTheDeviceHasToldItsRanges) {
    emit handler.changed();
    EXPECT_EQ(sent.size(), 0u);
    handler.setRanges({2});
    handler.setRanges({});
    handler.setStringMode("auto");
    EXPECT_EQ(sent.size(), 0u);
    handler.setStringMode("AUTO");
    EXPECT_EQ(handler.enumMode(), "AUTO");
    EXPECT_EQ(handler.getRanges(), QList<int>{2});
    EXPECT_EQ(sent.size(), 1u);
}
