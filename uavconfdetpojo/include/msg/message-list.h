// The list of all messages. Enumerators, table, readers and writers are made from it. Include it between
// macros-on.h and macros-off.h. On purpose: no include guard.

/// The message types in the order of their numbers. Columns: name, which is also the value of the key "type";
/// first generation that has it; class; class of the request that makes the device send it.
///
/// On purpose: FREQ_RANGE_ATTEN has no request here although there is a class for it, because nothing reads
/// it back. SET_MASK_RANGES is among the old types but came with K7. USB_NODE_INIT came last but is for every
/// generation.
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
