#pragma once

#include "common/guarded.h"
#include "usb-service.h"
#include "visuals/freq-plot-model.h"
#include "visuals/ranges-list-model.h"
#include "visuals/theme-data.h"

/// What the screens see of the device and of the window, in order of construction. None of it needs the
/// application object, which it outlives.
struct ServiceObjects {
    /// On the serial devices of this system.
    ServiceObjects() = default;
    /// On the serial devices that have a link in this directory.
    explicit ServiceObjects(const std::filesystem::path &serialDirectory)
        : usbService(nullptr, serialDirectory) {}
    /// On what this connector finds.
    explicit ServiceObjects(std::unique_ptr<SerialInterfaceConnector> connector)
        : usbService(std::move(connector)) {}

    Guarded<UsbService> usbService;
    Guarded<ThemeData> themeData;
    Guarded<RangesListModel> masterModes;
    Guarded<FreqPlotModel> freqPlotModel;
};
