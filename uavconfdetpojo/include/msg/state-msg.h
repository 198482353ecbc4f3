#pragma once

#include "master-freq-mode.h"
#include "msg/msg.h"
#include "state-range.h"

#include <map>
#include <memory>

#include "macros-on.h"

using StateRanges = std::map<MasterFreqModeEnum, std::shared_ptr<StateRange>>;

/// Battery and boot state; the proof that a device is there.
///
/// - `battLvl`: battery charge in percent
/// - `battVoltage`: battery voltage in volts
/// - `bootload`: the device runs its boot loader
#define FIELDS(FIELD)                      \
    FIELD(int, battLvl, BattLvl)           \
    FIELD(float, battVoltage, BattVoltage) \
    FIELD(bool, bootload, Bootload)        \
    FIELD(StateRanges, stateRanges, StateRanges)

MESSAGE(StateMsg, m_stateMsg, STATE)

#include "macros-off.h"
