#pragma once

#include "pty-device.h"
#include "recording.h"

#include <atomic>
#include <thread>

/// Plays what a device said in a recording: it answers with the settings that were told there, and each time
/// that it is told to scan, what followed the recorded order to scan comes again, with its own timing divided
/// by `speed`. The end of the recording is silence. On a thread of its own.
class Replay {
public:
    /// Throws std::runtime_error where the device says nothing in it.
    Replay(PtyDevice &device, const std::vector<Recorded> &recording, double speed);
    ~Replay();
    Replay(const Replay &) = delete;
    Replay &operator=(const Replay &) = delete;

private:
    void takeSettings(const std::vector<Recorded> &recording);
    void run(double speed);
    bool goesOn() const { return !ending && device.isScanning(); }

    PtyDevice &device;
    std::vector<Recorded> stream; ///< of the device, from the order to scan on; `at` counts from there
    std::atomic<bool> ending{false};
    std::thread thread;
};
