#pragma once

#include "enum-class.h"

#include <array>
#include <string>

#include "macros-on.h"

/// Type of a parameter of an EW output.
#define ENUMERATORS(ENUMERATOR) \
    ENUMERATOR(STRING)          \
    ENUMERATOR(NUMBER)          \
    ENUMERATOR(BOOLEAN)
NAMES_ENUMERATION(ConfParamType)

#include "macros-off.h"
