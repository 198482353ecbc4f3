#include "handlers/ai-prior-handler.h"

#include "msg/ai-prior-msg.h"
#include "signal-recorder.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class AiPriorHandlerTest : public testing::Test {
protected:
    AiPriorHandlerTest() {
        QObject::connect(&handler, &AiPriorHandler::gotMsg, [this](const MsgHolder &holder) {
            sent.push_back(holder.getAs<AiPriorMsg>(MsgTypeEnum::AI_PRIOR)->getAiPrior());
        });
    }

    AiPriorHandler handler;
    SignalRecorder recorder{&handler};
    std::vector<AiPriorEnum> sent;
};

} // namespace

TEST_F(AiPriorHandlerTest, HasNoneUntilAGenerationWithModesIsKnown) {
    handler.setProto(static_cast<int>(ProtoEnum::K1));
    EXPECT_THAT(recorder.take(), IsEmpty()) << "the first K1 is the generation in use";
    handler.nextAiPrior();
    EXPECT_EQ(handler.enumAiPrior(), "NONE");
    EXPECT_EQ(handler.shortName(), "Нет");
    emit handler.changed();
    EXPECT_THAT(sent, ElementsAre(AiPriorEnum::NONE));
}

TEST_F(AiPriorHandlerTest, ANewGenerationChoosesItsFirstMode) {
    handler.setProto(static_cast<int>(ProtoEnum::K6));
    EXPECT_EQ(handler.property("enumAiPrior"), "DEFAULT");
    EXPECT_EQ(handler.property("shortName"), "Оптим");
    handler.nextAiPrior();
    EXPECT_THAT(recorder.take(), ElementsAre("aiChanged", "aiChanged"));
    handler.setProto(static_cast<int>(ProtoEnum::K6));
    EXPECT_EQ(handler.enumAiPrior(), "FIELD") << "the same generation keeps the choice";
    handler.nextAiPrior();
    handler.nextAiPrior();
    EXPECT_EQ(handler.enumAiPrior(), "DEFAULT");
    handler.nextAiPrior();
    handler.setProto(static_cast<int>(ProtoEnum::K7));
    EXPECT_EQ(handler.enumAiPrior(), "DEFAULT");
    EXPECT_THROW(handler.setProto(4), std::out_of_range);
    EXPECT_EQ(handler.getProto(), static_cast<int>(ProtoEnum::K7));
}

TEST_F(AiPriorHandlerTest, SendsAModeChosenByName) {
    handler.setProto(static_cast<int>(ProtoEnum::K7));
    recorder.take();
    handler.setAiPrior("CITY");
    EXPECT_THAT(recorder.take(), ElementsAre("aiChanged", "gotMsg", "changed"));
    handler.setAiPrior("AUTO");
    EXPECT_THAT(sent, ElementsAre(AiPriorEnum::CITY, AiPriorEnum::CITY)) << "a mode it does not have";
    recorder.take();
    handler.setAiPrior("city");
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(AiPriorHandlerTest, DoesNotFollowTheDevice) {
    handler.setProto(static_cast<int>(ProtoEnum::K6));
    recorder.take();
    handler.accept(MsgHolder(Msg::parseJson("{\"type\":\"AI_PRIOR\",\"aiPrior\":\"CITY\"}")));
    EXPECT_THAT(recorder.take(), ElementsAre("aiChanged"));
    EXPECT_EQ(handler.enumAiPrior(), "DEFAULT");
    handler.accept(MsgHolder());
    handler.accept(MsgHolder(Msg::parseJson("{\"type\":\"CONFIG\"}")));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(AiPriorHandlerTest, SendsNothingToAGenerationWithoutModes) {
    handler.setProto(static_cast<int>(ProtoEnum::K6));
    handler.setProto(static_cast<int>(ProtoEnum::K1));
    handler.nextAiPrior();
    handler.setAiPrior("FIELD");
    EXPECT_EQ(handler.enumAiPrior(), "NONE");
    EXPECT_EQ(handler.shortName(), "Нет");
    EXPECT_THAT(sent, IsEmpty());
}
