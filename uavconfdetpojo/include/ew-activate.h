#pragma once

#include "enum-class.h"

#include <array>
#include <string>

#include "macros-on.h"

/// EW activation: how long an EW target drives its output.
#define ENUMERATORS(ENUMERATOR) \
    ENUMERATOR(ALWAYS)          \
    ENUMERATOR(TIMEOUT)
NAMES_ENUMERATION(EwActivate)

#include "macros-off.h"
