#pragma once

#include "pty-device.h"

#include <functional>
#include <random>
#include <string>
#include <vector>

/// A fault that the virtual detector can have.
struct DeviceFault {
    std::string name;
    std::string what; ///< a sentence for --help
    PtyDevice::Manner manner = PtyDevice::Manner::OBLIGING;
    std::chrono::milliseconds answerDelay{0};
    bool unplugged = false;
};

const std::vector<DeviceFault> &deviceFaults();
bool isDeviceFault(const std::string &name);

/// Gives a virtual detector faults now and then, on a thread of its own. After about a period without a
/// fault, one of the faults comes for about a quarter of a period. The same seed gives the same faults after
/// the same times. With a period of 0 the first fault stays all the time.
class DeviceFaults {
public:
    /// Gets the name of the fault, or an empty one when it is over. Runs on the thread of the faults.
    using Report = std::function<void(const std::string &fault)>;

    DeviceFaults(PtyDevice &device, std::vector<std::string> faults, std::chrono::milliseconds period,
                 unsigned seed, Report report);
    ~DeviceFaults();
    DeviceFaults(const DeviceFaults &) = delete;
    DeviceFaults &operator=(const DeviceFaults &) = delete;

private:
    void run();
    bool lasts(std::chrono::milliseconds about);
    void set(const std::string &name);

    PtyDevice &device;
    const std::vector<std::string> faults;
    const std::chrono::milliseconds period;
    const Report report;
    std::minstd_rand random;
    std::mutex mutex;
    std::condition_variable changed;
    bool ending = false; ///< guarded by `mutex`
    std::thread thread;
};
