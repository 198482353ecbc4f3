#pragma once

#include "enum-class.h"

#include <array>
#include <string>

#include "macros-on.h"

/// State of an EW output.
#define ENUMERATORS(ENUMERATOR) \
    ENUMERATOR(ON)              \
    ENUMERATOR(OFF)             \
    ENUMERATOR(DISABLE)         \
    ENUMERATOR(ERROR)
NAMES_ENUMERATION(EwState)

#include "macros-off.h"
