#pragma once

#include "msg/msg.h"

/// Starts or stops scanning.
#define SCAN_MSG_FIELDS(FIELD) FIELD(bool, scan, Scan)

MESSAGE(ScanMsg, m_scanMsg, SCAN, SCAN_MSG_FIELDS)
