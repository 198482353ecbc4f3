#pragma once

#include "enum-class.h"

#include <array>
#include <string>

#include "macros-on.h"

/// Signal class: the kind of signal that the detector found.
#define ENUMERATORS(ENUMERATOR) \
    ENUMERATOR(NONE)            \
    ENUMERATOR(WIFI)            \
    ENUMERATOR(DIG)             \
    ENUMERATOR(FPV)             \
    ENUMERATOR(BLOCK)           \
    ENUMERATOR(ALL)
NAMES_ENUMERATION(SigType)

#include "macros-off.h"
