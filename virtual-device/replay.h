#pragma once

#include "pty-device.h"
#include "recording.h"

#include <atomic>
#include <thread>

/// Plays a recording of a device, on a thread of its own. The device answers with the recorded settings.
/// After each SCAN on it sends what followed the recorded SCAN on, at the recorded times divided by `speed`.
/// After the end of the recording it sends no more scans.
class Replay {
public:
    /// Throws std::runtime_error if the recording has no bytes of the device.
    Replay(PtyDevice &device, const std::vector<Recorded> &recording, double speed);
    ~Replay();
    Replay(const Replay &) = delete;
    Replay &operator=(const Replay &) = delete;

private:
    void takeSettings(const std::vector<Recorded> &recording);
    void run(double speed);
    bool goesOn() const { return !ending && device.isScanning(); }

    PtyDevice &device;
    std::vector<Recorded> stream; ///< from the device, after SCAN on; `at` counts from there
    std::atomic<bool> ending{false};
    std::thread thread;
};
