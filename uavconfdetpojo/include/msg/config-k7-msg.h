#pragma once

#include "head-mode.h"
#include "msg/msg.h"

#include "macros-on.h"

/// The settings that generation K7 added: display, voice, headset jack, Bluetooth.
///
/// - `voiceEn`: voice alarm on
/// - `dispLvl`: display brightness, 0 to 100
/// - `dispOffTime`: seconds without activity before the display shuts off
/// - `indHeadLvl`: headphones volume, 0 to 100
/// - `btEn`: Bluetooth on
/// - `btPowerDbm`: Bluetooth transmit power in dBm
/// - `voiceDbLvl`: level in dB from which the voice alarm speaks
#define FIELDS(FIELD)                             \
    FIELD(bool, voiceEn, VoiceEn)                 \
    FIELD(int, dispLvl, DispLvl)                  \
    FIELD(int, dispOffTime, DispOffTime)          \
    FIELD(int, indHeadLvl, IndHeadLvl)            \
    FIELD(HeadModeEnum, indHeadMode, IndHeadMode) \
    FIELD(bool, btEn, BtEn)                       \
    FIELD(int, btPowerDbm, BtPowerDbm)            \
    FIELD(int, voiceDbLvl, VoiceDbLvl)

MESSAGE(ConfigK7Msg, m_configK7Msg, CONFIG_K7)

#include "macros-off.h"
