#pragma once

#include "enum-class.h"

#include <array>
#include <string>

#include "macros-on.h"

/// The use of the headset jack.
#define ENUMERATORS(ENUMERATOR) \
    ENUMERATOR(OFF)             \
    ENUMERATOR(SOUND)           \
    ENUMERATOR(EW_CONTROL)
NAMES_ENUMERATION(HeadMode)

#include "macros-off.h"
