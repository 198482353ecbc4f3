#pragma once

#include "common/guarded.h"
#include "usb-service.h"
#include "visuals/freq-plot-model.h"
#include "visuals/ranges-list-model.h"
#include "visuals/theme-data.h"

/// The objects through which the screens see the device and the window, in order of construction. They need
/// no application object, and live longer than it.
struct ServiceObjects {
    /// Searches the serial devices of this system.
    ServiceObjects() = default;
    /// Searches the serial devices that have a link in this directory.
    explicit ServiceObjects(const std::filesystem::path &serialDirectory)
        : usbService(nullptr, serialDirectory) {}
    /// Uses this connector.
    explicit ServiceObjects(std::unique_ptr<SerialInterfaceConnector> connector)
        : usbService(std::move(connector)) {}

    Guarded<UsbService> usbService;
    Guarded<ThemeData> themeData;
    Guarded<RangesListModel> masterModes;
    Guarded<FreqPlotModel> freqPlotModel;
};
