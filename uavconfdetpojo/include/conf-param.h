#pragma once

#include "conf-param-type.h"
#include "fields.h"

#include <string>

#include "macros-on.h"

/// A parameter of an EW output. The limits are for programs that edit a value; the library does not check
/// them.
#define FIELDS(FIELD)                    \
    FIELD(std::string, name, Name)       \
    FIELD(std::string, descRu, DescRu)   \
    FIELD(ConfParamTypeEnum, type, Type) \
    FIELD(double, numMin, NumMin)        \
    FIELD(double, numMax, NumMax)        \
    FIELD(std::string, strRegex, StrRegex)

NESTED_VALUE(ConfParam, m_confParam)

#include "macros-off.h"
