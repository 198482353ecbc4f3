#pragma once

#include "ew-target.h"
#include "msg/msg.h"

#include <memory>
#include <vector>

/// The rules that drive the EW outputs.
#define CONFIG_EW_MSG_FIELDS(FIELD) FIELD(std::vector<std::shared_ptr<EwTarget>>, targets, Targets)

MESSAGE(ConfigEwMsg, m_configEwMsg, CONFIG_EW, CONFIG_EW_MSG_FIELDS)
