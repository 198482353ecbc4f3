#pragma once

#include "ew-output-state.h"
#include "msg/msg.h"

#include <memory>
#include <vector>

/// The states of all EW outputs.
#define EW_OUTPUT_STATES_MSG_FIELDS(FIELD) \
    FIELD(std::vector<std::shared_ptr<EwOutputState>>, outStates, OutStates)

MESSAGE(EwOutputStatesMsg, m_ewOutputStatesMsg, EW_OUTPUT_STATES, EW_OUTPUT_STATES_MSG_FIELDS)
