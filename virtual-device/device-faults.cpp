#include "device-faults.h"

#include <algorithm>

using std::chrono::milliseconds;
using Manner = PtyDevice::Manner;

namespace {

constexpr milliseconds LATE{1000}; // more than the time-out of the first request

std::vector<DeviceFault>::const_iterator faultNamed(const std::string &name) {
    return std::find_if(
        deviceFaults().begin(), deviceFaults().end(),
        [&](const DeviceFault &fault) { return fault.name == name; });
}

} // namespace

const std::vector<DeviceFault> &deviceFaults() {
    static const std::vector<DeviceFault> FAULTS = {
        {"late", "Answers come a second late.", Manner::OBLIGING, LATE},
        {"silent", "The detector reads everything and sends nothing.", Manner::SILENT},
        {"deaf", "The detector takes no bytes, as if it had crashed.", Manner::DEAF},
        {"sweeps", "The detector takes bytes only between two scans.", Manner::SWEEPING},
        {"refusing", "Every change of a setting fails.", Manner::REFUSING},
        {"noise", "Meaningless bytes come before each message.", Manner::NOISY},
        {"cut", "Messages end in the middle.", Manner::CUT},
        {"unplug", "The detector is unplugged for a while. Needs --period.", Manner::OBLIGING,
         milliseconds(0), true},
    };
    return FAULTS;
}

bool isDeviceFault(const std::string &name) {
    return faultNamed(name) != deviceFaults().end();
}

DeviceFaults::DeviceFaults(PtyDevice &faulty, std::vector<std::string> names, milliseconds about,
                           unsigned seed, Report reportFault)
    : device(faulty)
    , faults(std::move(names))
    , period(about)
    , report(std::move(reportFault))
    , random(seed) {
    if (period.count() == 0)
        set(faults.front());
    else
        thread = std::thread([this] { run(); });
}

DeviceFaults::~DeviceFaults() {
    {
        const std::lock_guard lock(mutex);
        ending = true;
    }
    changed.notify_all();
    if (thread.joinable())
        thread.join();
}

void DeviceFaults::run() {
    while (lasts(period)) {
        set(faults[random() % faults.size()]);
        const bool over = lasts(period / 4);
        set("");
        if (!over)
            return;
    }
}

/// Waits for a random time from half to one and a half of `about`. False if the end came first.
bool DeviceFaults::lasts(milliseconds about) {
    const auto time = about * (50 + static_cast<int>(random() % 101)) / 100;
    std::unique_lock lock(mutex);
    return !changed.wait_for(lock, time, [this] { return ending; });
}

/// An empty name ends the fault.
void DeviceFaults::set(const std::string &name) {
    const auto named = faultNamed(name);
    const DeviceFault fault = named == deviceFaults().end() ? DeviceFault() : *named;
    device.setManner(fault.manner);
    device.setAnswerDelay(fault.answerDelay);
    if (fault.unplugged)
        device.unplug();
    else
        device.plugIn();
    report(name);
}
