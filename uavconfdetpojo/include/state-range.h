#pragma once

#include "fields.h"

#include "macros-on.h"

/// Flags of one band, carried without a use here.
#define FIELDS(FIELD)               \
    FIELD(bool, overflow, Overflow) \
    FIELD(bool, rew, Rew)

NESTED_VALUE(StateRange, m_stateRange)

#include "macros-off.h"
