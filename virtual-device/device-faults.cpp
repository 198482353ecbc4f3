#include "device-faults.h"

#include <map>

using std::chrono::milliseconds;

namespace {

constexpr milliseconds LATE{1000}; // more than a device has for its first answer

const std::map<std::string, PtyDevice::Manner> MANNERS = {
    {"silent", PtyDevice::Manner::SILENT},     {"deaf", PtyDevice::Manner::DEAF},
    {"refusing", PtyDevice::Manner::REFUSING}, {"noise", PtyDevice::Manner::NOISY},
    {"cut", PtyDevice::Manner::CUT},           {"sweeps", PtyDevice::Manner::SWEEPING}};

} // namespace

bool isDeviceFault(const std::string &name) {
    return name == "late" || name == "unplug" || MANNERS.count(name) > 0;
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

/// False when the end came before half to one and a half of this time had passed.
bool DeviceFaults::lasts(milliseconds about) {
    const auto time = about * (50 + static_cast<int>(random() % 101)) / 100;
    std::unique_lock lock(mutex);
    return !changed.wait_for(lock, time, [this] { return ending; });
}

void DeviceFaults::set(const std::string &fault) {
    const auto manner = MANNERS.find(fault);
    device.setManner(manner == MANNERS.end() ? PtyDevice::Manner::OBLIGING : manner->second);
    device.setAnswerDelay(fault == "late" ? LATE : milliseconds(0));
    if (fault == "unplug")
        device.unplug();
    else
        device.plugIn();
    report(fault);
}
