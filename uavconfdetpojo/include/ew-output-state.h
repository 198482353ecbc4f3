#pragma once

#include "ew-state.h"
#include "fields.h"

#include <string>

/// The state of one EW output.
///
/// - `stateMsg`: text that goes with the state
#define EW_OUTPUT_STATE_FIELDS(FIELD) \
    FIELD(int, id, Id)                \
    FIELD(EwStateEnum, state, State)  \
    FIELD(std::string, stateMsg, StateMsg)

NESTED_VALUE(EwOutputState, m_ewOutputState, EW_OUTPUT_STATE_FIELDS)
