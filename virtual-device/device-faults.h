#pragma once

#include "pty-device.h"

#include <functional>
#include <random>
#include <string>
#include <vector>

/// What may be wrong with a device on its line.
struct DeviceFault {
    std::string name;
    std::string what; ///< a sentence for --help
    PtyDevice::Manner manner = PtyDevice::Manner::OBLIGING;
    std::chrono::milliseconds answerDelay{0};
    bool unplugged = false;
};

const std::vector<DeviceFault> &deviceFaults();
bool isDeviceFault(const std::string &name);

/// Has a device go wrong now and then, on a thread of its own: after about a period of good time one of the
/// faults lasts for about a quarter of a period. The same seed gives the same faults after the same times.
/// Without a period the first fault lasts all the time.
class DeviceFaults {
public:
    using Report = std::function<void(const std::string &fault)>; ///< empty when it is over; on the thread

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
