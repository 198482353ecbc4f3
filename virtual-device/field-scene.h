#pragma once

#include "proto.h"
#include "scenes.h"

#include <vector>

/// Scans as a detector with factory bands sends them in the field, oldest first, and the same on each call:
/// noise, a wireless network, the control link of a drone, and an FPV drone that comes closer at 5800 MHz.
std::vector<ScanResults> fieldScene(ProtoEnum generation);
