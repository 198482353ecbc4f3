#pragma once

#include "enum-class.h"
#include "proto.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace json11 {
class Json;
}
class Msg;

/// The message types in the order of their numbers: name (also the value of the key "type"), first protocol
/// generation that has it, class, and the class of the request that makes the device send it.
/// FREQ_RANGE_ATTEN has a request class but no request here: nothing reads it back. USB_NODE_INIT came last
/// and holds for every generation all the same.
#define MESSAGE_TYPES(ROW)                                                \
    ROW(CONFIG, K1, ConfigMsg, GetConfigMsg)                              \
    ROW(GET_CONFIG, K1, GetConfigMsg, NoRequest)                          \
    ROW(OK, K1, OkMsg, NoRequest)                                         \
    ROW(FAIL, K1, FailMsg, NoRequest)                                     \
    ROW(SCAN_RESULT, K1, ScanResultMsg, NoRequest)                        \
    ROW(FREQS, K1, FreqsMsg, NoRequest)                                   \
    ROW(STATE, K1, StateMsg, GetStateMsg)                                 \
    ROW(GET_STATE, K1, GetStateMsg, NoRequest)                            \
    ROW(CONFIG_RANGES, K1, ConfigRangesMsg, GetConfigRangesMsg)           \
    ROW(GET_CONFIG_RANGES, K1, GetConfigRangesMsg, NoRequest)             \
    ROW(SET_MASK, K1, SetMaskMsg, NoRequest)                              \
    ROW(SET_MASK_RANGES, K7, SetMaskRangesMsg, NoRequest)                 \
    ROW(MASK_RESULT, K1, MaskResultMsg, NoRequest)                        \
    ROW(SCAN, K1, ScanMsg, NoRequest)                                     \
    ROW(TO_BOOTLOAD, K1, ToBootloadMsg, NoRequest)                        \
    ROW(START_FLASHING, K1, StartFlashing, NoRequest)                     \
    ROW(WRITE_FLASH, K1, WriteFlashMsg, NoRequest)                        \
    ROW(END_FLASHING, K1, EndFlashingMsg, NoRequest)                      \
    ROW(SET_FACTORY, K1, SetFactoryMsg, NoRequest)                        \
    ROW(GET_VERS, K1, GetVersMsg, NoRequest)                              \
    ROW(VERS, K1, VersMsg, GetVersMsg)                                    \
    ROW(SHUTDOWN, K1, ShutdownMsg, NoRequest)                             \
    ROW(TEST_OUTS, K1, TestOutsMsg, NoRequest)                            \
    ROW(SDR_MODE, K6, SdrModeMsg, NoRequest)                              \
    ROW(SDR_DATA, K6, SdrDataMsg, NoRequest)                              \
    ROW(GET_AI_PRIOR, K6, GetAiPriorMsg, NoRequest)                       \
    ROW(AI_PRIOR, K6, AiPriorMsg, GetAiPriorMsg)                          \
    ROW(WRITE_EXT_MEM, K7, WriteExtMemoryMsg, NoRequest)                  \
    ROW(GET_CONFIG_FREQ_CALIB, K7, GetConfigFreqCalibMsg, NoRequest)      \
    ROW(CONFIG_FREQ_CALIB, K7, ConfigFreqCalibMsg, GetConfigFreqCalibMsg) \
    ROW(GET_CONFIG_K7, K7, GetConfigK7Msg, NoRequest)                     \
    ROW(CONFIG_K7, K7, ConfigK7Msg, GetConfigK7Msg)                       \
    ROW(GET_STATE_K7, K7, GetStateK7Msg, NoRequest)                       \
    ROW(STATE_K7, K7, StateK7Msg, GetStateK7Msg)                          \
    ROW(TO_APP, K7, ToAppMsg, NoRequest)                                  \
    ROW(GET_EW_HARDWARE, K7EW, GetEwHardwareMsg, NoRequest)               \
    ROW(EW_HARDWARE, K7EW, EwHardwareMsg, GetEwHardwareMsg)               \
    ROW(GET_CONFIG_EW, K7EW, GetConfigEwMsg, NoRequest)                   \
    ROW(CONFIG_EW, K7EW, ConfigEwMsg, GetConfigEwMsg)                     \
    ROW(SWITCH_EW_OUTPUT, K7EW, SwitchEwOutputMsg, NoRequest)             \
    ROW(GET_EW_OUTPUT_STATES, K7EW, GetEwOutputStatesMsg, NoRequest)      \
    ROW(EW_OUTPUT_STATES, K7EW, EwOutputStatesMsg, GetEwOutputStatesMsg)  \
    ROW(GET_FREQ_RANGE_ATTEN, K7EW, GetFreqRangeAttenMsg, NoRequest)      \
    ROW(FREQ_RANGE_ATTEN, K7EW, FreqRangeAttenMsg, NoRequest)             \
    ROW(AI_MODE, K7EW, AiModeMsg, NoRequest)                              \
    ROW(AI_DATA, K7EW, AiDataMsg, NoRequest)                              \
    ROW(GET_BLUETOOTH_MAC, K7EW, GetBluetoothMacMsg, NoRequest)           \
    ROW(BLUETOOTH_MAC, K7EW, BluetoothMacMsg, GetBluetoothMacMsg)         \
    ROW(APPLY_EXT_MEM, K7EW, ApplyExtMemoryMsg, NoRequest)                \
    ROW(USB_NODE_INIT, K1, UsbNodeInitMsg, NoRequest)

#define MESSAGE_TYPE_ENUMERATOR(NAME, since, Class, Request) NAME,
enum class _MsgTypeEnum : int { MESSAGE_TYPES(MESSAGE_TYPE_ENUMERATOR) };
#undef MESSAGE_TYPE_ENUMERATOR
using MsgTypeEnum = _MsgTypeEnum;

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

extern const std::array<_MsgTypeEnumBase, 50> MsgTypeEnum_values;

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

template <>
struct EnumClassOf<MsgTypeEnum> {
    using type = MsgType;
};
