#pragma once

#include "ew-output-state.h"
#include "msg/msg.h"

#include <memory>
#include <vector>

#include "macros-on.h"

/// The states of all EW outputs.
#define FIELDS(FIELD) FIELD(std::vector<std::shared_ptr<EwOutputState>>, outStates, OutStates)

MESSAGE(EwOutputStatesMsg, m_ewOutputStatesMsg, EW_OUTPUT_STATES)

#include "macros-off.h"
