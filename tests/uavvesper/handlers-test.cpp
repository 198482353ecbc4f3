#include "handlers/ai-prior-handler.h"
#include "handlers/config-k7-handler.h"
#include "handlers/config-msg-handler.h"
#include "messages.h"
#include "msg-to-json-parser.h"
#include "signal-recorder.h"
#include "wire-text.h"

#include <gmock/gmock.h>

using namespace testing;

/// A settings front-end, with what it emits and what it sends: each text as it is at that moment, since the
/// message goes on living.
template <typename Handler>
struct Watched {
    Watched() {
        QObject::connect(
            &handler, &Handler::gotMsg,
            [this](const MsgHolder &holder) { sent.push_back(MsgToJsonParser::toJson(holder.getMsg())); });
    }
    Handler handler;
    SignalRecorder recorder{&handler};
    std::vector<std::string> sent;
};

static const std::string CONFIG = wire(
    R"({|"proto" : "K7",|"indLed" : true,|"indSnd" : false,|"indVibro" : true,|"indLedLvl" : 11,|"indSndLvl" : 22,|)"
    R"("mode" : "CONT",|"wifiDet" : true,|"uavDet" : false,|"ranges" : [|"EXT_1200",|"STD_5800"|],|"hwVers" : "h1",|)"
    R"("fwVers" : "f2",|"bootVers" : "b3",|"md5Serial" : "m4",|"atten" : 3,|"type" : "CONFIG"|})");
static const std::string BURST =
    "protoChanged indLedChanged indSndChanged indVibroChanged indLedLvlChanged indSndLvlChanged "
    "stringModeChanged modeChanged wifiDetChanged uavDetChanged rangesChanged hwVersChanged fwVersChanged "
    "bootVersChanged md5SerialChanged sensChanged attenChanged";

TEST(Handlers, MirrorTheConfigAndSendItOnceTheDeviceHasToldItsRanges) {
    Watched<ConfigMsgHandler> watched;
    auto &[handler, recorder, sent] = watched;
    emit handler.changed();
    handler.setStringMode("AUTO");
    EXPECT_THAT(sent, IsEmpty());
    recorder.take();
    handler.nextSens();
    EXPECT_EQ(recorder.take(), "sensChanged");
    const std::vector<std::pair<const char *, QVariant>> initial = {
        {"sens", "LOW"}, {"atten", 6}, {"indLedLvl", 75}, {"indSndLvl", 100}, {"enumMode", "AUTO"}};
    for (const auto &[name, value] : initial)
        EXPECT_EQ(handler.property(name), value) << name;

    handler.accept(held(CONFIG));
    EXPECT_EQ(recorder.take(), BURST);
    const std::vector<std::pair<const char *, QVariant>> shown = {
        {"proto", 2},       {"indLed", true},   {"indSnd", false}, {"indVibro", true},
        {"indLedLvl", 11},  {"indSndLvl", 22},  {"mode", 3},       {"stringMode", "Непрерывный"},
        {"wifiDet", 1},     {"uavDet", 0},      {"hwVers", "h1"},  {"fwVers", "f2"},
        {"atten", 3},       {"bootVers", "b3"}, {"sens", "MID"},   {"enumMode", "CONT"},

        {"md5Serial", "m4"}};
    for (const auto &[name, value] : shown)
        EXPECT_EQ(handler.property(name), value) << name;
    EXPECT_EQ(handler.getRanges(), (QList<int>{1, 6}));
    handler.setRanges({});
    handler.setIndLedLvl(12);
    handler.setUavDet(7);
    handler.setStringMode("auto");
    handler.accept(MsgHolder());
    handler.accept(held(R"({"type":"CONFIG_K7"})"));
    EXPECT_EQ(recorder.take(), "");
    emit handler.changed();
    EXPECT_EQ(recorder.take(), "gotMsg " + BURST + " changed") << "the handler hears changed first";
    std::string edited = CONFIG;
    edited.replace(edited.find("11"), 2, "12");
    edited.replace(edited.rfind("false"), 5, "true");
    EXPECT_THAT(sent, ElementsAre(edited));
    EXPECT_THROW(handler.setMode(4), std::out_of_range);
}

TEST(Handlers, MirrorTheConfigOfK7AndSendItAlways) {
    const std::string config = wire(
        R"({|"voiceEn" : true,|"dispLvl" : 50,|"dispOffTime" : 30,|"indHeadLvl" : 25,|"indHeadMode" : "OFF",|)"
        R"("btEn" : true,|"btPowerDbm" : -4,|"voiceDbLvl" : -94,|"type" : "CONFIG_K7"|})");
    const std::string burst =
        "voiceEnChanged dispLvlChanged dispOffTimeChanged indHeadLvlChanged indHeadModeChanged "
        "btEnChanged btPowerDbmChanged voiceDbLvlChanged";
    Watched<ConfigK7Handler> watched;
    auto &[handler, recorder, sent] = watched;
    emit handler.changed();
    EXPECT_EQ(recorder.take(), "gotMsg " + burst + " changed");
    handler.accept(held(config));
    EXPECT_EQ(recorder.take(), burst);
    EXPECT_EQ(handler.property("voiceDbLvl"), -94);
    handler.accept(MsgHolder());
    handler.accept(held(R"({"type":"CONFIG"})"));
    handler.setMode("sound");
    EXPECT_EQ(recorder.take(), "");
    emit handler.changed();
    handler.setMode("SOUND");
    EXPECT_EQ(handler.enumMode(), "SOUND");
    EXPECT_THAT(
        sent, ElementsAre(wire(R"({|"indHeadLvl" : 0,|"type" : "CONFIG_K7"|})"), config, HasSubstr("SOUND")));
}

TEST(Handlers, KeepTheAiModeThatTheUserChose) {
    enum { K1, K6, K7 };
    Watched<AiPriorHandler> watched;
    auto &[handler, recorder, sent] = watched;
    handler.setProto(K1);
    EXPECT_EQ(recorder.take(), "");
    handler.nextAiPrior();
    EXPECT_EQ(handler.property("enumAiPrior"), "NONE");
    EXPECT_EQ(handler.property("shortName"), "Нет");
    emit handler.changed();
    EXPECT_EQ(recorder.take(), "aiChanged gotMsg changed");
    EXPECT_THAT(sent, ElementsAre(wire(R"({|"aiPrior" : "NONE",|"type" : "AI_PRIOR"|})")));

    handler.setProto(K6);
    handler.setProto(K1);
    handler.nextAiPrior();
    handler.setAiPrior("FIELD");
    EXPECT_EQ(handler.enumAiPrior(), "NONE") << "a generation without modes behind one that has them";
    EXPECT_EQ(sent.size(), 1U);
    EXPECT_THROW(handler.setProto(4), std::out_of_range);
    handler.setProto(K7);
    recorder.take();
    for (const char *name : {"CITY", "AUTO", "city"})
        handler.setAiPrior(name);
    handler.setProto(K7);
    handler.accept(held(R"({"type":"AI_PRIOR","aiPrior":"FIELD"})"));
    handler.accept(held(R"({"type":"CONFIG"})"));
    EXPECT_EQ(recorder.take(), "aiChanged gotMsg changed aiChanged gotMsg changed aiChanged");
    EXPECT_EQ(handler.enumAiPrior(), "CITY") << "AUTO is no mode of any generation, city no mode at all";
    handler.setProto(K6);
    EXPECT_EQ(handler.enumAiPrior(), "DEFAULT") << "the first of another generation";
}
