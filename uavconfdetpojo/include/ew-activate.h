#pragma once

#include "enum-class.h"

#include <array>
#include <string>

#include "macros-on.h"

/// How an EW target acts.
#define ENUMERATORS(ENUMERATOR) \
    ENUMERATOR(ALWAYS)          \
    ENUMERATOR(TIMEOUT)
NAMES_ENUMERATION(EwActivate)

#include "macros-off.h"
