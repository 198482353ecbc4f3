#pragma once

#include "enum-class.h"

#include <array>
#include <string>

#include "macros-on.h"

/// Class of a signal, as the detector judges it.
#define ENUMERATORS(ENUMERATOR) \
    ENUMERATOR(NONE)            \
    ENUMERATOR(WIFI)            \
    ENUMERATOR(DIG)             \
    ENUMERATOR(FPV)             \
    ENUMERATOR(BLOCK)           \
    ENUMERATOR(ALL)
NAMES_ENUMERATION(SigType)

#include "macros-off.h"
