#pragma once

#include "msg/msg.h"

#include <string>

/// Writes the factory data of the device.
#define SET_FACTORY_MSG_FIELDS(FIELD) FIELD(std::string, serial, Serial)

MESSAGE(SetFactoryMsg, m_setFactoryMsg, SET_FACTORY, SET_FACTORY_MSG_FIELDS)
