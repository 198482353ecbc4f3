#pragma once

#include "proto.h"

#include <chrono>
#include <string>
#include <vector>

/// The options of the virtual detector's command line.
struct DeviceOptions {
    std::string link; ///< empty for none
    ProtoEnum generation = ProtoEnum::K7;
    std::chrono::milliseconds pace{500}; ///< between scans
    std::string scene = "drone";
    int battery = 87; ///< percent
    std::vector<std::string> faults;
    std::chrono::milliseconds faultPeriod{0}; ///< 0: the fault stays all the time
    unsigned seed = 0;
    std::string replay; ///< a recording, or empty
    double speed = 1;
    std::string tapped, record; ///< the real detector and the file of the tap, or both empty
    bool help = false;
};

/// The text of --help for the options and for the names that they take.
std::string deviceOptionsHelp();

/// Throws std::runtime_error with one line for the user.
DeviceOptions parseDeviceOptions(int argc, char **argv);
