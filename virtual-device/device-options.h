#pragma once

#include "device-faults.h"
#include "replay.h"

#include <memory>
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

/// What --help says of the options.
extern const char *const DEVICE_OPTIONS_HELP;

/// Throws std::runtime_error with one line for the user.
DeviceOptions parseDeviceOptions(int argc, char **argv);

/// A device that plays as told, and says on standard output what it does.
class VirtualDevice {
public:
    /// Throws std::runtime_error with one line for the user.
    explicit VirtualDevice(const DeviceOptions &options);

    PtyDevice &pty() { return *device; }

private:
    std::unique_ptr<PtyDevice> device;
    std::unique_ptr<Replay> replay;
    std::unique_ptr<DeviceFaults> faults;
};
