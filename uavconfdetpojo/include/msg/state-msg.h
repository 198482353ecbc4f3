#pragma once

#include "master-freq-mode.h"
#include "msg/msg.h"
#include "state-range.h"

#include <map>
#include <memory>

#include "macros-on.h"

using StateRanges = std::map<MasterFreqModeEnum, std::shared_ptr<StateRange>>;

/// Battery and boot state. A device is recognised by this message.
///
/// - `battLvl`: battery charge in percent
/// - `battVoltage`: battery voltage in volts
/// - `bootload`: true if the device runs its boot loader
#define FIELDS(FIELD)                      \
    FIELD(int, battLvl, BattLvl)           \
    FIELD(float, battVoltage, BattVoltage) \
    FIELD(bool, bootload, Bootload)        \
    FIELD(StateRanges, stateRanges, StateRanges)

MESSAGE(StateMsg, m_stateMsg, STATE)

#include "macros-off.h"
