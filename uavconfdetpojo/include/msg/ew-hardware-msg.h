#pragma once

#include "ew-output.h"
#include "msg/msg.h"

#include <memory>
#include <vector>

#include "macros-on.h"

/// The EW outputs that the device has.
#define FIELDS(FIELD) FIELD(std::vector<std::shared_ptr<EwOutput>>, outs, Outs)

MESSAGE(EwHardwareMsg, m_ewHardwareMsg, EW_HARDWARE)

#include "macros-off.h"
