#include "handlers/ai-prior-handler.h"

#include "messages.h"
#include "signal-recorder.h"

#include <gtest/gtest.h>

enum { K1, K6, K7 }; // the generations as the screens write them

class AiPriorHandlerTest : public testing::Test {
protected:
    AiPriorHandler handler;
    SignalRecorder recorder{&handler};
    SentTexts sent{handler};
};

TEST_F(AiPriorHandlerTest, SendsNoneUntilAGenerationWithModesIsKnown) {
    handler.setProto(K1);
    EXPECT_EQ(recorder.take(), "");
    handler.nextAiPrior();
    EXPECT_EQ(handler.property("enumAiPrior"), "NONE");
    EXPECT_EQ(handler.property("shortName"), "Нет");
    emit handler.changed();
    EXPECT_EQ(sent.back(), "{\n\"aiPrior\" : \"NONE\",\n\"type\" : \"AI_PRIOR\"\n}");

    handler.setProto(K6);
    handler.setProto(K1);
    handler.nextAiPrior();
    handler.setAiPrior("FIELD");
    EXPECT_EQ(handler.enumAiPrior(), "NONE") << "a generation without modes behind one that has them";
    EXPECT_EQ(sent.size(), 1u);
}

TEST_F(AiPriorHandlerTest, ChoosesTheFirstModeOfANewGeneration) {
    for (const int proto : {K6, K7}) {
        handler.setProto(proto);
        EXPECT_EQ(recorder.take(), "aiChanged");
        for (const char *mode : {"DEFAULT", "FIELD", "CITY", "DEFAULT", "FIELD"}) {
            EXPECT_EQ(handler.enumAiPrior(), mode);
            handler.setProto(proto);
            handler.accept(held(R"({"type":"AI_PRIOR","aiPrior":"CITY"})"));
            EXPECT_EQ(handler.enumAiPrior(), mode) << "neither the same generation nor the device moves it";
            handler.nextAiPrior();
            EXPECT_EQ(recorder.take(), "aiChanged aiChanged");
        }
    }
    EXPECT_THROW(handler.setProto(4), std::out_of_range);
    EXPECT_EQ(handler.getProto(), K7);
}

TEST_F(AiPriorHandlerTest, SendsAModeChosenByName) {
    handler.setProto(K7);
    for (const char *name : {"FIELD", "AUTO", "city"})
        handler.setAiPrior(name);
    EXPECT_EQ(recorder.take(), "aiChanged aiChanged gotMsg changed aiChanged gotMsg changed");
    EXPECT_EQ(handler.enumAiPrior(), "FIELD") << "AUTO is no mode of any generation, city no mode at all";
}
