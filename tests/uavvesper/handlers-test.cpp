#include "handlers/ai-prior-handler.h"
#include "handlers/config-k7-handler.h"
#include "handlers/config-msg-handler.h"
#include "models.h"

/// A settings front-end whose signals and messages are noted.
template <typename Handler>
struct Watched : Handler {
    Watched() {
        QObject::connect(
            this, &Handler::gotMsg,
            [this](const MsgHolder &holder) {
                // Its text now, because the message may change later.
                sent = " " + MsgToJsonParser::toJson(holder.getMsg());
            });
    }
    /// The signals that a call causes, and the message that is sent.
    template <typename Call, typename... Arguments>
    std::string by(Call call, Arguments... arguments) {
        std::invoke(call, *this, arguments...);
        return recorder.take() + std::exchange(sent, {});
    }
    void shows(const std::vector<std::pair<const char *, QVariant>> &properties) const {
        for (const auto &[name, value] : properties)
            EXPECT_EQ(this->property(name), value) << name;
    }

    SignalRecorder recorder{this};
    std::string sent;
};

TEST(Handlers, MirrorTheConfigAndSendItOnceTheDeviceHasToldItsRanges) {
    using H = ConfigMsgHandler;
    std::string config = wire(
        R"({|"proto" : "K7",|"indLed" : true,|"indSnd" : false,|"indVibro" : true,|"indLedLvl" : 11,|)"
        R"("indSndLvl" : 22,|"mode" : "CONT",|"wifiDet" : true,|"uavDet" : false,|"ranges" : [|"EXT_1200",|)"
        R"("STD_5800"|],|"hwVers" : "h1",|"fwVers" : "f2",|"bootVers" : "b3",|"md5Serial" : "m4",|)"
        R"("atten" : 3,|"type" : "CONFIG"|})");
    const std::string burst =
        "protoChanged indLedChanged indSndChanged indVibroChanged indLedLvlChanged indSndLvlChanged "
        "stringModeChanged modeChanged wifiDetChanged uavDetChanged rangesChanged hwVersChanged "
        "fwVersChanged "
        "bootVersChanged md5SerialChanged sensChanged attenChanged";
    Watched<H> handler;
    EXPECT_EQ(handler.by(&H::changed), "changed");
    EXPECT_EQ(handler.by(&H::setStringMode, "AUTO"), "changed");
    EXPECT_EQ(handler.by(&H::nextSens), "sensChanged");
    handler.shows({{"sens", "LOW"}, {"atten", 6}, {"indLedLvl", 75}, {"indSndLvl", 100}});
    EXPECT_EQ(handler.by(&H::accept, held(config)), burst);
    handler.shows({{"stringMode", "Непрерывный"}, {"sens", "MID"}, {"mode", 3}, {"wifiDet", 1}});
    EXPECT_EQ(handler.getRanges(), (QList<int>{1, 6}));
    EXPECT_EQ(handler.by(&H::setRanges, QList<int>()), "");
    EXPECT_EQ(handler.by(&H::setIndLedLvl, 12), "");
    EXPECT_EQ(handler.by(&H::setUavDet, 7), "");
    EXPECT_EQ(handler.by(&H::setStringMode, "auto"), "");
    EXPECT_EQ(handler.by(&H::accept, MsgHolder()), "");
    EXPECT_EQ(handler.by(&H::accept, held(R"({"type":"CONFIG_K7"})")), "");
    config.replace(config.find("11"), 2, "12").replace(config.rfind("false"), 5, "true");
    EXPECT_EQ(handler.by(&H::changed), "gotMsg " + burst + " changed " + config) << "it hears changed first";
    EXPECT_THROW(handler.setMode(4), std::out_of_range);
}

TEST(Handlers, MirrorTheConfigOfK7AndSendItAlways) {
    using H = ConfigK7Handler;
    const std::string config = wire(
        R"({|"voiceEn" : true,|"dispLvl" : 50,|"dispOffTime" : 30,|"indHeadLvl" : 25,|"indHeadMode" : "SOUND",|)"
        R"("btEn" : true,|"btPowerDbm" : -4,|"voiceDbLvl" : -94,|"type" : "CONFIG_K7"|})");
    const std::string burst = "voiceEnChanged dispLvlChanged dispOffTimeChanged indHeadLvlChanged "
                              "indHeadModeChanged btEnChanged btPowerDbmChanged voiceDbLvlChanged";
    Watched<H> handler;
    EXPECT_EQ(handler.by(&H::changed),
              "gotMsg " + burst + wire(R"( changed {|"indHeadLvl" : 0,|"type" : "CONFIG_K7"|})"));
    EXPECT_EQ(handler.by(&H::accept, held(config)), burst);
    EXPECT_EQ(handler.by(&H::accept, MsgHolder()), "");
    EXPECT_EQ(handler.by(&H::accept, held(R"({"type":"CONFIG"})")), "");
    EXPECT_EQ(handler.by(&H::setMode, "sound"), "");
    EXPECT_EQ(handler.by(&H::setMode, "SOUND"), "gotMsg " + burst + " changed " + config);
    handler.shows({{"voiceDbLvl", -94}, {"btPowerDbm", -4}});
}

TEST(Handlers, KeepTheAiModeThatTheUserChose) {
    using H = AiPriorHandler;
    enum { K1, K6, K7 };
    const auto sends = [](const std::string &mode) {
        return wire(R"({|"aiPrior" : ")" + mode + R"(",|"type" : "AI_PRIOR"|})");
    };
    Watched<H> handler;
    EXPECT_EQ(handler.by(&H::setProto, K1), "");
    EXPECT_EQ(handler.by(&H::nextAiPrior), "aiChanged");
    EXPECT_EQ(handler.by(&H::changed), "gotMsg changed " + sends("NONE"));
    handler.shows({{"enumAiPrior", "NONE"}, {"shortName", "Нет"}});
    EXPECT_EQ(handler.by(&H::setProto, K6), "aiChanged");
    EXPECT_EQ(handler.by(&H::setProto, K1), "aiChanged");
    EXPECT_EQ(handler.by(&H::nextAiPrior), "aiChanged");
    EXPECT_EQ(handler.by(&H::setAiPrior, "FIELD"), "aiChanged changed") << "behind a generation with modes";
    handler.shows({{"enumAiPrior", "NONE"}});
    EXPECT_THROW(handler.setProto(4), std::out_of_range);
    EXPECT_EQ(handler.by(&H::setProto, K7), "aiChanged");
    EXPECT_EQ(handler.by(&H::setAiPrior, "CITY"), "aiChanged gotMsg changed " + sends("CITY"));
    EXPECT_EQ(handler.by(&H::setAiPrior, "AUTO"), "aiChanged gotMsg changed " + sends("CITY"));
    EXPECT_EQ(handler.by(&H::setAiPrior, "city"), "");
    EXPECT_EQ(handler.by(&H::setProto, K7), "");
    EXPECT_EQ(handler.by(&H::accept, held(R"({"type":"AI_PRIOR","aiPrior":"FIELD"})")), "aiChanged");
    EXPECT_EQ(handler.by(&H::accept, held(R"({"type":"CONFIG"})")), "");
    handler.shows({{"enumAiPrior", "CITY"}, {"proto", K7}});
    EXPECT_EQ(handler.by(&H::setProto, K6), "aiChanged");
    handler.shows({{"enumAiPrior", "DEFAULT"}});
}
