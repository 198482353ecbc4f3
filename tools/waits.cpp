// Presses each button that makes the program wait for the device, with devices that keep it waiting. Prints
// how long the window stood still.

#include "cdc-acm-line.h"
#include "screen-tool.h"
#include "screens.h"

#include <list>
#include <optional>

namespace {

using Clock = std::chrono::steady_clock;

long long standstillMs(const std::function<void()> &gesture) {
    const auto start = Clock::now();
    gesture();
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
}

/// A reason to wait for the device. The line is that of a USB device.
struct Trouble {
    const char *name;
    void (*begin)(PtyDevice &device, CdcAcmLine &line);
    bool isFull; ///< the line takes nothing any more
};

/// A sweep has just begun.
void sweep(PtyDevice &, CdcAcmLine &line) {
    static constexpr auto SWEEP = std::chrono::milliseconds(250), GAP = std::chrono::milliseconds(5);
    line.takeWhile([start = Clock::now()] { return (Clock::now() - start) % (SWEEP + GAP) >= SWEEP; });
}

const Trouble TROUBLES[] = {
    {"answers", [](PtyDevice &, CdcAcmLine &) {}, false},
    {"silent", [](PtyDevice &device, CdcAcmLine &) { device.setManner(PtyDevice::Manner::SILENT); }, false},
    {"sweeps", sweep, false},
    {"hung", [](PtyDevice &, CdcAcmLine &line) { line.hold(); }, true}};

class Waits : Screens {
public:
    /// A line for each gesture with a connected device.
    void withOneDevice() {
        std::printf("| |");
        for (const Trouble &trouble : TROUBLES)
            std::printf(" %s |", trouble.name);
        std::printf("\n|---|---|---|---|---|\n");
        for (const char *gesture : {"87%", "Mask", "Vibro", "AI: *", "Fabric settings", "usb"})
            row(
                gesture, [&] { click(gesture); });
        row("end", [this] { objects.usbService.shutDown(); });
    }

    /// In the slowest scan mode, where the pause between two scans is the longest.
    void withSimulator() {
        std::printf("\n| test mode | |\n|---|---|\n");
        for (int press = 0; press < 12; ++press)
            click("info");
        click("cfg");
        click("Scan mode");
        choose("Efficient");
        for (const char *gesture : {"Mask", "usb"})
            std::printf("| %s | %lld ms |\n", gesture, standstillMs([&] { click(gesture); }));
    }

    void withSilentPorts() {
        usb.reset();
        device.reset();
        std::list<PtyDevice> silent;
        for (const char *name : {"usb-1", "usb-2", "usb-3", "usb-4"})
            silent.emplace_back(directory, ProtoEnum::K7, name).setManner(PtyDevice::Manner::SILENT);
        std::printf("\n| four silent ports | |\n|---|---|\n");
        std::printf("| usb | %lld ms |\n", standstillMs([&] { click("usb"); }));
        std::printf("| usb again | %lld ms |\n", standstillMs([&] { click("usb"); }));
        std::printf("| end | %lld ms |\n", standstillMs([&] { objects.usbService.shutDown(); }));
    }

private:
    void row(const char *name, const std::function<void()> &gesture) {
        std::printf("| %s |", name);
        for (const Trouble &trouble : TROUBLES) {
            const CdcAcmLine &line = connectOverUsb(trouble);
            std::printf(" %lld ms |", standstillMs(gesture));
            if (isConnected())
                disconnect();
            if (line.leftToClose() > 0)
                throw std::runtime_error("The system's close has to wait for the device.");
        }
        std::printf("\n");
    }

    CdcAcmLine &connectOverUsb(const Trouble &trouble) {
        plugIn(ProtoEnum::K7);
        usb.reset();
        usb.emplace(device->terminal());
        connect();
        if (!ScreenDriver::waitFor([this] { return driver->control("87%"); }))
            throw std::runtime_error("The battery does not show.");
        trouble.begin(*device, *usb);
        for (int press = 0; press < 4 && trouble.isFull; ++press)
            click("Vibro");
        return *usb;
    }

    std::optional<CdcAcmLine> usb;
};

} // namespace

int main(int argc, char **argv) {
    return runScreenTool(
        "waits", argc, argv,
        [] {
            Waits waits;
            waits.withOneDevice();
            waits.withSimulator();
            waits.withSilentPorts();
            return true;
        });
}
