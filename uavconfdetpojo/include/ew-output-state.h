#pragma once

#include "ew-state.h"
#include "fields.h"

#include <string>

#include "macros-on.h"

/// The state of one EW output.
///
/// - `stateMsg`: text that goes with the state
#define FIELDS(FIELD)                \
    FIELD(int, id, Id)               \
    FIELD(EwStateEnum, state, State) \
    FIELD(std::string, stateMsg, StateMsg)

NESTED_VALUE(EwOutputState, m_ewOutputState)

#include "macros-off.h"
