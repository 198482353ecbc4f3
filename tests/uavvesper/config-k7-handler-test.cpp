#include "handlers/config-k7-handler.h"

#include "signal-recorder.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string CONFIG_TEXT = R"({
"voiceEn" : true,
"dispLvl" : 50,
"dispOffTime" : 30,
"indHeadLvl" : 25,
"indHeadMode" : "EW_CONTROL",
"btEn" : true,
"btPowerDbm" : -4,
"voiceDbLvl" : -94,
"type" : "CONFIG_K7"
})";

class ConfigK7HandlerTest : public testing::Test {
protected:
    ConfigK7HandlerTest() {
        QObject::connect(&handler, &ConfigK7Handler::gotMsg, [this](const MsgHolder &holder) {
            sent.push_back(holder.getAs<ConfigK7Msg>(MsgTypeEnum::CONFIG_K7)->parseMsg());
        });
    }

    ConfigK7Handler handler;
    SignalRecorder recorder{&handler};
    std::vector<std::string> sent;
};

} // namespace

TEST_F(ConfigK7HandlerTest, MirrorsAConfigAndSendsItBackOnlyWhenEdited) {
    handler.accept(MsgHolder(Msg::parseJson(CONFIG_TEXT)));
    EXPECT_THAT(recorder.take(),
                ElementsAre("voiceEnChanged", "dispLvlChanged", "dispOffTimeChanged", "indHeadLvlChanged",
                            "indHeadModeChanged", "btEnChanged", "btPowerDbmChanged", "voiceDbLvlChanged"));
    EXPECT_EQ(handler.property("indHeadMode"), 2);
    EXPECT_EQ(handler.property("voiceDbLvl"), -94);
    EXPECT_EQ(handler.enumMode(), "EW_CONTROL");
    handler.accept(MsgHolder());
    handler.accept(MsgHolder(Msg::parseJson("{\"type\":\"CONFIG\"}")));
    EXPECT_THAT(recorder.take(), IsEmpty());
    emit handler.changed();
    EXPECT_THAT(sent, ElementsAre(CONFIG_TEXT));
    EXPECT_EQ(recorder.take().at(0), "gotMsg");
}

TEST_F(ConfigK7HandlerTest, SendsEvenBeforeAConfigHasCome) {
    emit handler.changed();
    EXPECT_THAT(sent, ElementsAre("{\n\"indHeadLvl\" : 0,\n\"type\" : \"CONFIG_K7\"\n}"));
}

TEST_F(ConfigK7HandlerTest, SetsTheHeadsetModeByItsWireName) {
    handler.setMode("sound");
    EXPECT_THAT(recorder.take(), IsEmpty());
    handler.setMode("SOUND");
    EXPECT_EQ(handler.getIndHeadMode(), 1);
    EXPECT_EQ(sent.size(), 1u);
}
