#pragma once

#include "proto.h"

#include <chrono>
#include <string>
#include <vector>

/// How a virtual device is to play, as its user says on the command line.
struct DeviceOptions {
    std::string link; ///< empty for none
    ProtoEnum generation = ProtoEnum::K7;
    std::chrono::milliseconds pace{500}; ///< between scans
    std::string scene = "drone";
    int battery = 87; ///< percent
    std::vector<std::string> faults;
    std::chrono::milliseconds faultPeriod{0}; ///< 0: the one fault all the time
    unsigned seed = 0;
    std::string replay; ///< a recording, or empty
    double speed = 1;
    std::string tapped, record; ///< stands between this device and the program, or empty
    bool help = false;
};

/// What --help says of the options, and of the names that they take.
std::string deviceOptionsHelp();

/// Throws std::runtime_error with one line for the user.
DeviceOptions parseDeviceOptions(int argc, char **argv);
