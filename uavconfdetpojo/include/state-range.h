#pragma once

#include "fields.h"

/// Flags of one band, carried without a use here.
#define STATE_RANGE_FIELDS(FIELD)   \
    FIELD(bool, overflow, Overflow) \
    FIELD(bool, rew, Rew)

NESTED_VALUE(StateRange, m_stateRange, STATE_RANGE_FIELDS)
