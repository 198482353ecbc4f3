#include "msg/all-messages.h"

#include <gtest/gtest.h>

TEST(MsgType, KnowsItsNumberItsGenerationAndItsRequest) {
    struct Row {
        const char *name;
        int number;
        ProtoEnum since;
        const char *request;
    };
    EXPECT_EQ(MsgType::getLength(), 50);
    EXPECT_EQ(MsgType::getEnumValue("config"), std::nullopt);
    for (const Row &row :
         {Row{"CONFIG", 0, ProtoEnum::K1, "GET_CONFIG"}, Row{"SET_MASK_RANGES", 11, ProtoEnum::K7, ""},
          Row{"AI_PRIOR", 26, ProtoEnum::K6, "GET_AI_PRIOR"},
          Row{"FREQ_RANGE_ATTEN", 43, ProtoEnum::K7EW, ""}, // though a request class exists
          Row{"USB_NODE_INIT", 49, ProtoEnum::K1, ""}}) {
        SCOPED_TRACE(row.name);
        const MsgTypeEnum value = static_cast<MsgTypeEnum>(row.number);
        const MsgType type(value);
        EXPECT_EQ(type.name(), row.name);
        EXPECT_EQ(type.getSinceProto(), row.since);
        const std::shared_ptr<Msg> request = type.getRequestMsg();
        EXPECT_EQ(request ? MsgType(request->getType()).name() : "", row.request);
        EXPECT_EQ(request, type.getRequestMsg()) << "one request, shared by all";
        EXPECT_EQ(MsgType::getParseFunc(value)("{}")->getType(), value);
        EXPECT_EQ(MsgType::getParseFunc(value)("[]"), nullptr);
    }
}
