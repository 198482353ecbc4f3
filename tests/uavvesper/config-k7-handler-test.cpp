#include "handlers/config-k7-handler.h"

#include "messages.h"
#include "signal-recorder.h"

#include <gtest/gtest.h>

TEST(ConfigK7Handler, MirrorsAConfigAndSendsWhatTheUserEdits) {
    const std::string config = "{\n\"voiceEn\" : true,\n\"dispLvl\" : 50,\n\"dispOffTime\" : 30,\n"
                               "\"indHeadLvl\" : 25,\n\"indHeadMode\" : \"OFF\",\n\"btEn\" : true,\n"
                               "\"btPowerDbm\" : -4,\n\"voiceDbLvl\" : -94,\n\"type\" : \"CONFIG_K7\"\n}";
    ConfigK7Handler handler;
    SignalRecorder recorder(&handler);
    SentTexts sent(handler);
    emit handler.changed();
    EXPECT_EQ(sent.back(), "{\n\"indHeadLvl\" : 0,\n\"type\" : \"CONFIG_K7\"\n}") << "before a CONFIG_K7";
    recorder.take();

    handler.accept(held(config));
    EXPECT_EQ(recorder.take(), "voiceEnChanged dispLvlChanged dispOffTimeChanged indHeadLvlChanged "
                               "indHeadModeChanged btEnChanged btPowerDbmChanged voiceDbLvlChanged");
    EXPECT_EQ(handler.property("voiceDbLvl"), -94);
    emit handler.changed();
    EXPECT_EQ(sent.back(), config);
    EXPECT_EQ(recorder.take().find("gotMsg voiceEnChanged"), 0u);

    handler.accept(MsgHolder());
    handler.accept(held(R"({"type":"CONFIG"})"));
    handler.setMode("sound");
    EXPECT_EQ(recorder.take(), "");
    handler.setMode("SOUND");
    EXPECT_EQ(handler.enumMode(), "SOUND");
    EXPECT_EQ(sent.size(), 3u);
}
