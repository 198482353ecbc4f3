#pragma once

#include "msg/msg.h"

#include <string>

#include "macros-on.h"

/// Writes the serial number of the device.
#define FIELDS(FIELD) FIELD(std::string, serial, Serial)

MESSAGE(SetFactoryMsg, m_setFactoryMsg, SET_FACTORY)

#include "macros-off.h"
