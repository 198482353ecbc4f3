// Presses each button that makes the program wait for the device, with devices that keep it waiting, and
// tells how long the window stood still.

#include "screen-tool.h"
#include "screens.h"

#include <list>

namespace {

using Clock = std::chrono::steady_clock;

long long standstillMs(const std::function<void()> &gesture) {
    const auto start = Clock::now();
    gesture();
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
}

class Waits : Screens {
public:
    /// A line for each gesture with a connected device.
    void withOneDevice() {
        const PtyDevice::Manner manners[] = {PtyDevice::Manner::OBLIGING, PtyDevice::Manner::SILENT,
                                             PtyDevice::Manner::DEAF};
        const char *gestures[] = {"87%", "Mask", "Vibro", "AI: *", "Fabric settings", "usb"};
        std::printf("| | obliging | silent | hung |\n|---|---|---|---|\n");
        for (const char *gesture : gestures) {
            std::printf("| %s |", gesture);
            for (const auto manner : manners) {
                connectTo(ProtoEnum::K7);
                waitForBattery();
                hang(manner);
                std::printf(" %lld ms |", standstillMs([&] { click(gesture); }));
                if (isConnected())
                    disconnect();
            }
            std::printf("\n");
        }
        std::printf("| end |");
        for (const auto manner : manners) {
            connectTo(ProtoEnum::K7);
            hang(manner);
            std::printf(" %lld ms |", standstillMs([&] { objects.usbService.shutDown(); }));
        }
        std::printf("\n");
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
    void waitForBattery() {
        if (!ScreenDriver::waitFor([this] { return driver->control("87%"); }))
            throw std::runtime_error("The battery does not show.");
    }

    /// A device that has hung takes no bytes; it keeps nobody waiting for room before the line is full.
    void hang(PtyDevice::Manner manner) {
        device->setManner(manner);
        for (int press = 0; press < 12 && manner == PtyDevice::Manner::DEAF; ++press)
            click("Vibro");
    }
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
