#pragma once

#include "ew-target.h"
#include "msg/msg.h"

#include <memory>
#include <vector>

#include "macros-on.h"

/// The EW targets, which drive the EW outputs.
#define FIELDS(FIELD) FIELD(std::vector<std::shared_ptr<EwTarget>>, targets, Targets)

MESSAGE(ConfigEwMsg, m_configEwMsg, CONFIG_EW)

#include "macros-off.h"
