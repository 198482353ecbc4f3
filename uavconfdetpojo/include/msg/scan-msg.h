#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// Starts or stops scanning.
#define FIELDS(FIELD) FIELD(bool, scan, Scan)

MESSAGE(ScanMsg, m_scanMsg, SCAN)

#include "macros-off.h"
