#pragma once

#include "proto.h"
#include "scenes.h"

#include <vector>

/// Scans as a detector with factory settings sends them in the field, oldest first: noise, a wireless
/// network, the control link of a drone, and an FPV drone that comes closer at 5800 MHz. Each call returns
/// the same scans.
std::vector<ScanResults> fieldScene(ProtoEnum generation);
