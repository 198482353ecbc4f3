#pragma once

#include "conf-param.h"
#include "fields.h"

#include <memory>
#include <string>
#include <vector>

#include "macros-on.h"

/// An EW output and the parameters that it takes.
///
/// - `id`: the number of the output in targets, states and SWITCH_EW_OUTPUT
#define FIELDS(FIELD)                  \
    FIELD(int, id, Id)                 \
    FIELD(std::string, desc, Desc)     \
    FIELD(std::string, descRu, DescRu) \
    FIELD(std::vector<std::shared_ptr<ConfParam>>, params, Params)

NESTED_VALUE(EwOutput, m_ewOutput)

#include "macros-off.h"
