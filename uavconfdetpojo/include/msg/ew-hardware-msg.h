#pragma once

#include "ew-output.h"
#include "msg/msg.h"

#include <memory>
#include <vector>

/// The EW outputs that the device has.
#define EW_HARDWARE_MSG_FIELDS(FIELD) FIELD(std::vector<std::shared_ptr<EwOutput>>, outs, Outs)

MESSAGE(EwHardwareMsg, m_ewHardwareMsg, EW_HARDWARE, EW_HARDWARE_MSG_FIELDS)
