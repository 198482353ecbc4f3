#pragma once

#include "device-faults.h"
#include "device-options.h"
#include "replay.h"

#include <memory>

/// The virtual detector with its options. It prints what it does to standard output.
class VirtualDevice {
public:
    /// Throws std::runtime_error with a one-line text for the user.
    explicit VirtualDevice(const DeviceOptions &options);

    PtyDevice &pty() { return *device; }

private:
    std::unique_ptr<PtyDevice> device;
    std::unique_ptr<Replay> replay;
    std::unique_ptr<DeviceFaults> faults;
};
