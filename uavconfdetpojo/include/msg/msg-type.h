#pragma once

#include "enum-class.h"
#include "proto.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "macros-on.h"

namespace json11 {
class Json;
}
class Msg;
/// Stands in the place of a request class where no request makes the device send a type.
struct NoRequest;

struct _MsgTypeEnumBase {
    std::string strValue;
    ProtoEnum sinceProto;
    /// Text to message of the row's class; null for text that is no JSON object.
    std::function<std::shared_ptr<Msg>(const std::string &)> parseFunc;
    /// Null where no request makes the device send this type. Shared by all who send it; never modified.
    std::shared_ptr<Msg> requestMsg;
    /// The same as `parseFunc` for an object that is parsed already.
    std::function<std::shared_ptr<Msg>(const json11::Json &)> fromJson;
};

/// The message types in the order of their numbers: name (also the value of the key "type"), first protocol
/// generation that has it, class, and the class of the request that makes the device send it.
///
/// On purpose: FREQ_RANGE_ATTEN has a request class but no request here, since nothing reads it back;
/// SET_MASK_RANGES stands among the old types and came with K7; USB_NODE_INIT came last and holds for every
/// generation all the same.
#define ENUMERATORS(ENUMERATOR)                                                  \
    ENUMERATOR(CONFIG, K1, ConfigMsg, GetConfigMsg)                              \
    ENUMERATOR(GET_CONFIG, K1, GetConfigMsg, NoRequest)                          \
    ENUMERATOR(OK, K1, OkMsg, NoRequest)                                         \
    ENUMERATOR(FAIL, K1, FailMsg, NoRequest)                                     \
    ENUMERATOR(SCAN_RESULT, K1, ScanResultMsg, NoRequest)                        \
    ENUMERATOR(FREQS, K1, FreqsMsg, NoRequest)                                   \
    ENUMERATOR(STATE, K1, StateMsg, GetStateMsg)                                 \
    ENUMERATOR(GET_STATE, K1, GetStateMsg, NoRequest)                            \
    ENUMERATOR(CONFIG_RANGES, K1, ConfigRangesMsg, GetConfigRangesMsg)           \
    ENUMERATOR(GET_CONFIG_RANGES, K1, GetConfigRangesMsg, NoRequest)             \
    ENUMERATOR(SET_MASK, K1, SetMaskMsg, NoRequest)                              \
    ENUMERATOR(SET_MASK_RANGES, K7, SetMaskRangesMsg, NoRequest)                 \
    ENUMERATOR(MASK_RESULT, K1, MaskResultMsg, NoRequest)                        \
    ENUMERATOR(SCAN, K1, ScanMsg, NoRequest)                                     \
    ENUMERATOR(TO_BOOTLOAD, K1, ToBootloadMsg, NoRequest)                        \
    ENUMERATOR(START_FLASHING, K1, StartFlashing, NoRequest)                     \
    ENUMERATOR(WRITE_FLASH, K1, WriteFlashMsg, NoRequest)                        \
    ENUMERATOR(END_FLASHING, K1, EndFlashingMsg, NoRequest)                      \
    ENUMERATOR(SET_FACTORY, K1, SetFactoryMsg, NoRequest)                        \
    ENUMERATOR(GET_VERS, K1, GetVersMsg, NoRequest)                              \
    ENUMERATOR(VERS, K1, VersMsg, GetVersMsg)                                    \
    ENUMERATOR(SHUTDOWN, K1, ShutdownMsg, NoRequest)                             \
    ENUMERATOR(TEST_OUTS, K1, TestOutsMsg, NoRequest)                            \
    ENUMERATOR(SDR_MODE, K6, SdrModeMsg, NoRequest)                              \
    ENUMERATOR(SDR_DATA, K6, SdrDataMsg, NoRequest)                              \
    ENUMERATOR(GET_AI_PRIOR, K6, GetAiPriorMsg, NoRequest)                       \
    ENUMERATOR(AI_PRIOR, K6, AiPriorMsg, GetAiPriorMsg)                          \
    ENUMERATOR(WRITE_EXT_MEM, K7, WriteExtMemoryMsg, NoRequest)                  \
    ENUMERATOR(GET_CONFIG_FREQ_CALIB, K7, GetConfigFreqCalibMsg, NoRequest)      \
    ENUMERATOR(CONFIG_FREQ_CALIB, K7, ConfigFreqCalibMsg, GetConfigFreqCalibMsg) \
    ENUMERATOR(GET_CONFIG_K7, K7, GetConfigK7Msg, NoRequest)                     \
    ENUMERATOR(CONFIG_K7, K7, ConfigK7Msg, GetConfigK7Msg)                       \
    ENUMERATOR(GET_STATE_K7, K7, GetStateK7Msg, NoRequest)                       \
    ENUMERATOR(STATE_K7, K7, StateK7Msg, GetStateK7Msg)                          \
    ENUMERATOR(TO_APP, K7, ToAppMsg, NoRequest)                                  \
    ENUMERATOR(GET_EW_HARDWARE, K7EW, GetEwHardwareMsg, NoRequest)               \
    ENUMERATOR(EW_HARDWARE, K7EW, EwHardwareMsg, GetEwHardwareMsg)               \
    ENUMERATOR(GET_CONFIG_EW, K7EW, GetConfigEwMsg, NoRequest)                   \
    ENUMERATOR(CONFIG_EW, K7EW, ConfigEwMsg, GetConfigEwMsg)                     \
    ENUMERATOR(SWITCH_EW_OUTPUT, K7EW, SwitchEwOutputMsg, NoRequest)             \
    ENUMERATOR(GET_EW_OUTPUT_STATES, K7EW, GetEwOutputStatesMsg, NoRequest)      \
    ENUMERATOR(EW_OUTPUT_STATES, K7EW, EwOutputStatesMsg, GetEwOutputStatesMsg)  \
    ENUMERATOR(GET_FREQ_RANGE_ATTEN, K7EW, GetFreqRangeAttenMsg, NoRequest)      \
    ENUMERATOR(FREQ_RANGE_ATTEN, K7EW, FreqRangeAttenMsg, NoRequest)             \
    ENUMERATOR(AI_MODE, K7EW, AiModeMsg, NoRequest)                              \
    ENUMERATOR(AI_DATA, K7EW, AiDataMsg, NoRequest)                              \
    ENUMERATOR(GET_BLUETOOTH_MAC, K7EW, GetBluetoothMacMsg, NoRequest)           \
    ENUMERATOR(BLUETOOTH_MAC, K7EW, BluetoothMacMsg, GetBluetoothMacMsg)         \
    ENUMERATOR(APPLY_EXT_MEM, K7EW, ApplyExtMemoryMsg, NoRequest)                \
    ENUMERATOR(USB_NODE_INIT, K1, UsbNodeInitMsg, NoRequest)
ENUMERATION_WITHOUT_ROWS(MsgType)

class MsgType : public EnumClass<MsgTypeEnum, MsgTypeEnum_values> {
public:
    using EnumClass::EnumClass;

    ProtoEnum getSinceProto() const { return record().sinceProto; }
    /// The request that makes the device send this type, or null.
    std::shared_ptr<Msg> getRequestMsg() const { return record().requestMsg; }
    static std::function<std::shared_ptr<Msg>(const std::string &)> getParseFunc(MsgTypeEnum type) {
        return MsgType(type).record().parseFunc;
    }
};

#define DECLARE_CLASS(NAME, since, Message, Request) class Message;
ENUMERATORS(DECLARE_CLASS)
#undef DECLARE_CLASS

/// Calls visit(Message *) with a null pointer to the class of a type, which tells no more than the class.
/// `otherwise` is the result for a number that is no type.
template <typename Result, typename Visit>
Result withClassOf(MsgTypeEnum type, Result otherwise, Visit visit) {
#define VISIT_CLASS(NAME, since, Message, Request) \
    case MsgTypeEnum::NAME:                        \
        return visit(static_cast<Message *>(nullptr));
    switch (type) { ENUMERATORS(VISIT_CLASS) }
#undef VISIT_CLASS
    return otherwise;
}

/// The rows of the table, each made by Make::row<Message, Request>(name, first generation).
template <typename Make>
auto rowsOfMsgType() {
#define MAKE_ROW(NAME, since, Message, Request) Make::template row<Message, Request>(#NAME, ProtoEnum::since),
    return std::array<_MsgTypeEnumBase, 50>{{ENUMERATORS(MAKE_ROW)}};
#undef MAKE_ROW
}

#include "macros-off.h"
