#include "messages.h"

namespace {

/// Texts of the enumerators in order, joined by blanks.
template <typename Class, typename Text>
std::string each(Text text) {
    std::string all;
    for (const auto value : Class::values())
        all += (all.empty() ? "" : " ") + text(Class(value));
    return all;
}

/// The numbers of enumerators.
template <typename Enum>
std::string numbers(const std::vector<Enum> &enumerators) {
    std::string all;
    for (const Enum enumerator : enumerators)
        all += std::to_string(static_cast<int>(enumerator));
    return all;
}

template <typename Class>
std::string names() {
    return each<Class>([](const Class &value) {
        EXPECT_EQ(Class::getEnumValue(value.name()), value.getValue()) << value.name();
        EXPECT_EQ(Class::getEnumValue(value.name() + " "), std::nullopt) << value.name();
        return value.name();
    });
}

} // namespace

TEST(Enumerations, HaveTheseNamesOnTheWireInThisOrder) {
    EXPECT_EQ(names<Proto>(), "K1 K6 K7 K7EW");
    EXPECT_EQ(names<MasterFreqMode>(), "R_1200 R_2400 R_4900 R_5800");
    EXPECT_EQ(names<FreqMode>(),
              "STD_1200 EXT_1200 STD_2400 EXT_2400 STD_4900 EXT_4900 STD_5800 EXT_5800 CUSTOM");
    EXPECT_EQ(names<DetMode>(), "ECO BASE AUTO CONT");
    EXPECT_EQ(names<SigType>(), "NONE WIFI DIG FPV BLOCK ALL");
    EXPECT_EQ(names<HeadMode>(), "OFF SOUND EW_CONTROL");
    EXPECT_EQ(names<AiPrior>(), "AUTO DEFAULT FIELD CITY NONE");
    EXPECT_EQ(names<EwState>(), "ON OFF DISABLE ERROR");
    EXPECT_EQ(names<EwActivate>(), "ALWAYS TIMEOUT");
    EXPECT_EQ(names<ConfParamType>(), "STRING NUMBER BOOLEAN");
    EXPECT_EQ(
        names<MsgType>(),
        "CONFIG GET_CONFIG OK FAIL SCAN_RESULT FREQS STATE GET_STATE CONFIG_RANGES GET_CONFIG_RANGES "
        "SET_MASK "
        "SET_MASK_RANGES MASK_RESULT SCAN TO_BOOTLOAD START_FLASHING WRITE_FLASH END_FLASHING SET_FACTORY "
        "GET_VERS VERS SHUTDOWN TEST_OUTS SDR_MODE SDR_DATA GET_AI_PRIOR AI_PRIOR WRITE_EXT_MEM "
        "GET_CONFIG_FREQ_CALIB CONFIG_FREQ_CALIB GET_CONFIG_K7 CONFIG_K7 GET_STATE_K7 STATE_K7 TO_APP "
        "GET_EW_HARDWARE EW_HARDWARE GET_CONFIG_EW CONFIG_EW SWITCH_EW_OUTPUT GET_EW_OUTPUT_STATES "
        "EW_OUTPUT_STATES GET_FREQ_RANGE_ATTEN FREQ_RANGE_ATTEN AI_MODE AI_DATA GET_BLUETOOTH_MAC "
        "BLUETOOTH_MAC APPLY_EXT_MEM USB_NODE_INIT");
    EXPECT_EQ(static_cast<int>(MsgTypeEnum::USB_NODE_INIT), 49);
    EXPECT_EQ(SigType::getEnumValue("wifi"), std::nullopt);
}

TEST(Enumerations, HaveTheseNamesForTheUser) {
    EXPECT_EQ(each<DetMode>([](DetMode mode) { return mode.getName() + "/" + mode.getShortName(); }),
              "Экономичный/Экон Базовый/Станд Авто/Авто Непрерывный/Непр");
    EXPECT_EQ(each<AiPrior>([](AiPrior prior) { return prior.getName() + "/" + prior.getShortName(); }),
              "Автоматический/Авто По умолчанию/Оптим Поле/Поле Город/Город Нет/Нет");
    EXPECT_EQ(each<MasterFreqMode>([](MasterFreqMode band) { return band.getViewName(); }),
              "1.2ГГц 2.4ГГц 4.9ГГц 5.8ГГц");
    EXPECT_EQ(each<FreqMode>([](FreqMode range) { return range.getViewName(); }),
              "1.2 1.2+ 2.4 2.4+ 4.9 4.9+ 5.8 5.8+ Заданный");
    EXPECT_EQ(Proto(ProtoEnum::K6).getDesc(), "Kelvane v6 (2.4 4.9 5.8) + AI_priors + SDR_MODE");
}

TEST(Enumerations, SweepRangesHaveTheirPlans) {
    EXPECT_EQ(each<FreqMode>([](FreqMode range) {
                  std::ostringstream text;
                  const std::vector<float> plan = range.getFreqList()->getFreqs();
                  text << range.getVisibleIndex() << ':' << range.getMinFreq() << '-' << range.getMaxFreq();
                  for (const std::size_t point : {std::size_t(1), plan.size() - 1})
                      text << (plan.empty() ? "" : ',' + std::to_string(int(plan[point])));
                  return text.str() + '/' + std::to_string(plan.size());
              }),
              "0:1000-1680,1010,1680/69 1:830-1730,840,1730/91 2:2400-2484,2406,2484/15 "
              "3:2350-2550,2360,2550/21 4:5150-5354,5156,5354/35 5:4800-5460,4810,5460/67 "
              "6:5725-5851,5731,5851/22 7:5470-6100,5480,6100/64 -1:0-0/0");
}

TEST(Enumerations, GenerationsHaveTheirBandsRangesAndAiModes) {
    EXPECT_EQ(each<Proto>([](Proto proto) { return numbers(proto.getMasterModes()); }), "123 123 0123 0123");
    EXPECT_EQ(each<Proto>([](Proto proto) { return numbers(proto.getFreqModes()); }),
              "234567 234567 01234567 01234567")
        << "CUSTOM belongs to no generation";
    EXPECT_EQ(each<Proto>([](Proto proto) { return "-" + numbers(proto.getAiPriors()); }),
              "- -123 -123 -123");
    using Band = MasterFreqMode;
    EXPECT_EQ(each<Band>([](Band band) { return numbers(band.getModes()); }), "01 23 45 67");
    EXPECT_EQ(each<Band>([](Band band) { return FreqMode(band.getMaxRangeFreqMode()).name(); }),
              "EXT_1200 EXT_2400 EXT_4900 EXT_5800");
}

TEST(Enumerations, MessageTypesKnowTheirGenerationClassAndRequest) {
    std::vector<ProtoEnum> since;
    std::string requests;
    for (const MsgType type : MsgType::values()) {
        since.push_back(type.getSinceProto());
        const auto request = type.getRequestMsg();
        EXPECT_EQ(request, type.getRequestMsg()) << "one request, shared by all";
        if (request)
            requests += MsgType(request->getType()).name() + " ";
        EXPECT_EQ(MsgType::getParseFunc(type.getValue())("{}")->getType(), type.getValue());
        EXPECT_EQ(MsgType::getParseFunc(type.getValue())("[]"), nullptr);
    }
    EXPECT_EQ(numbers(since), "00000000000200000000000111122222222333333333333330");
    EXPECT_EQ(requests, "GET_CONFIG GET_STATE GET_CONFIG_RANGES GET_VERS GET_AI_PRIOR GET_CONFIG_FREQ_CALIB "
                        "GET_CONFIG_K7 GET_STATE_K7 GET_EW_HARDWARE GET_CONFIG_EW GET_EW_OUTPUT_STATES "
                        "GET_BLUETOOTH_MAC ")
        << "nothing asks for FREQ_RANGE_ATTEN";
}
