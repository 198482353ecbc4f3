#include "virtual-device.h"

#include "scenes.h"

#include <cstdio>

VirtualDevice::VirtualDevice(const DeviceOptions &options)
    : device(std::make_unique<PtyDevice>(std::filesystem::path(options.link), options.generation)) {
    device->setScanPeriod(options.pace);
    device->setScene(*sceneOf(options.scene));
    device->setBattery(options.battery);
    if (!options.replay.empty())
        replay = std::make_unique<Replay>(*device, readRecording(options.replay), options.speed);
    const std::string where = options.link.empty() ? device->terminal() : options.link;
    std::printf("A detector of generation %s at %s\n", Proto(options.generation).name().c_str(),
                where.c_str());
    if (options.faults.empty())
        return;
    std::printf("Faults from seed %u\n", options.seed);
    faults = std::make_unique<DeviceFaults>(
        *device, options.faults, options.faultPeriod, options.seed, [](const std::string &fault) {
            std::printf("%s\n", fault.empty() ? "all is well" : ("fault: " + fault).c_str());
        });
}
