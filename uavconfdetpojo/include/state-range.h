#pragma once

#include "fields.h"

#include "macros-on.h"

/// Flags of one band. Not used by this library or the program.
#define FIELDS(FIELD)               \
    FIELD(bool, overflow, Overflow) \
    FIELD(bool, rew, Rew)

NESTED_VALUE(StateRange, m_stateRange)

#include "macros-off.h"
