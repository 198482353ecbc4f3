#pragma once

#include "device-faults.h"
#include "device-options.h"
#include "replay.h"

#include <memory>

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
