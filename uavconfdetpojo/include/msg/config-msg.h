#pragma once

#include "det-mode.h"
#include "freq-mode.h"
#include "msg/msg.h"
#include "proto.h"

#include <string>
#include <vector>

#include "macros-on.h"

/// The main settings of the device, and its generation.
///
/// - `indLedLvl`: brightness, 0 to 100
/// - `indSndLvl`: sound volume, 0 to 100
/// - `ranges`: active sweep ranges, in the order of the device
/// - `md5Serial`: serial hash, as shown to the user
/// - `atten`: attenuation in steps
#define FIELDS(FIELD)                                \
    FIELD(ProtoEnum, proto, Proto)                   \
    FIELD(bool, indLed, IndLed)                      \
    FIELD(bool, indSnd, IndSnd)                      \
    FIELD(bool, indVibro, IndVibro)                  \
    FIELD(int, indLedLvl, IndLedLvl)                 \
    FIELD(int, indSndLvl, IndSndLvl)                 \
    FIELD(DetModeEnum, mode, Mode)                   \
    FIELD(bool, wifiDet, WifiDet)                    \
    FIELD(bool, uavDet, UavDet)                      \
    FIELD(std::vector<FreqModeEnum>, ranges, Ranges) \
    FIELD(std::string, hwVers, HwVers)               \
    FIELD(std::string, fwVers, FwVers)               \
    FIELD(std::string, bootVers, BootVers)           \
    FIELD(std::string, md5Serial, Md5Serial)         \
    FIELD(int, atten, Atten)

MESSAGE(ConfigMsg, m_configMsg, CONFIG)

#include "macros-off.h"
