#include "msg-to-json-parser.h"
#include "msg/all-messages.h"
#include "wire-text.h"

#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace {

const char *const namesInOrder =
    "CONFIG GET_CONFIG OK FAIL SCAN_RESULT FREQS STATE GET_STATE CONFIG_RANGES GET_CONFIG_RANGES SET_MASK "
    "SET_MASK_RANGES MASK_RESULT SCAN TO_BOOTLOAD START_FLASHING WRITE_FLASH END_FLASHING SET_FACTORY "
    "GET_VERS "
    "VERS SHUTDOWN TEST_OUTS SDR_MODE SDR_DATA GET_AI_PRIOR AI_PRIOR WRITE_EXT_MEM GET_CONFIG_FREQ_CALIB "
    "CONFIG_FREQ_CALIB GET_CONFIG_K7 CONFIG_K7 GET_STATE_K7 STATE_K7 TO_APP GET_EW_HARDWARE EW_HARDWARE "
    "GET_CONFIG_EW CONFIG_EW SWITCH_EW_OUTPUT GET_EW_OUTPUT_STATES EW_OUTPUT_STATES GET_FREQ_RANGE_ATTEN "
    "FREQ_RANGE_ATTEN AI_MODE AI_DATA GET_BLUETOOTH_MAC BLUETOOTH_MAC APPLY_EXT_MEM USB_NODE_INIT";

/// The types that are read back by a request, whose name is theirs behind "GET_".
const std::set<std::string> fetched = {
    "CONFIG",    "STATE",    "CONFIG_RANGES", "VERS",      "AI_PRIOR",         "CONFIG_FREQ_CALIB",
    "CONFIG_K7", "STATE_K7", "EW_HARDWARE",   "CONFIG_EW", "EW_OUTPUT_STATES", "BLUETOOTH_MAC"};

ProtoEnum since(const std::string &name) {
    static const std::set<std::string> k6 = {"SDR_MODE", "SDR_DATA", "GET_AI_PRIOR", "AI_PRIOR"};
    static const std::set<std::string> k7 = {"SET_MASK_RANGES",   "WRITE_EXT_MEM", "GET_CONFIG_FREQ_CALIB",
                                             "CONFIG_FREQ_CALIB", "GET_CONFIG_K7", "CONFIG_K7",
                                             "GET_STATE_K7",      "STATE_K7",      "TO_APP"};
    const auto known = MsgType::getEnumValue(name);
    const bool behindThem = known > MsgTypeEnum::TO_APP && known != MsgTypeEnum::USB_NODE_INIT;
    return k6.count(name)   ? ProtoEnum::K6
           : k7.count(name) ? ProtoEnum::K7
           : behindThem     ? ProtoEnum::K7EW
                            : ProtoEnum::K1;
}

} // namespace

TEST(MsgType, EveryRowOfTheTable) {
    ASSERT_EQ(MsgType::getLength(), 50);
    ASSERT_EQ(MsgType::values().size(), 50u);
    EXPECT_EQ(static_cast<int>(MsgTypeEnum::USB_NODE_INIT), 49);
    EXPECT_EQ(MsgType::getEnumValue("config"), std::nullopt);

    std::istringstream names(namesInOrder);
    for (const MsgTypeEnum value : MsgType::values()) {
        std::string name;
        ASSERT_TRUE(names >> name);
        SCOPED_TRACE(name);
        const MsgType type(value);
        EXPECT_EQ(type.name(), name);
        EXPECT_EQ(MsgType::getEnumValue(name), value);
        EXPECT_EQ(type.getSinceProto(), since(name));
        const std::shared_ptr<Msg> request = type.getRequestMsg();
        EXPECT_EQ(request ? MsgType(request->getType()).name() : "",
                  fetched.count(name) ? "GET_" + name : "");
        EXPECT_EQ(request, type.getRequestMsg()) << "one request, shared by all";

        // An object knows its type from the constructor of its class: the row's class is the right one.
        const std::string text = wire(R"({|"type" : ")" + name + R"("|})");
        const std::shared_ptr<Msg> msg = Msg::parseJson(text);
        ASSERT_NE(msg, nullptr);
        EXPECT_EQ(msg->getType(), value);
        EXPECT_EQ(MsgToJsonParser::toJson(msg), text);
        EXPECT_EQ(MsgToJsonParser::toJson(MsgType::getParseFunc(value)("{}")), text);
        EXPECT_EQ(MsgType::getParseFunc(value)("[]"), nullptr);
    }
}
