// The application beside a virtual device, which is all that it finds. Options are those of the device.

#include "process-signals.h"
#include "screen-engine.h"
#include "virtual-device.h"

#include <QGuiApplication>
#include <cstdio>

int main(int argc, char **argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    try {
        followDesktop(argc, argv);
        const SerialDirectory directory;
        ServiceObjects objects(directory.path());
        registerTypes();
        QGuiApplication app(argc, argv); // takes the toolkit's own options
        introduceProgram();
        DeviceOptions options = parseDeviceOptions(argc, argv);
        if (options.help) {
            std::printf("./run --virtual starts the program beside a detector that plays as told.\n"
                        "--link, --tap and --record are for tools/virtual-device alone.\n\n%s",
                        deviceOptionsHelp().c_str());
            return 0;
        }
        if (!options.link.empty() || !options.tapped.empty())
            throw std::runtime_error("--link and --tap are for tools/virtual-device");
        options.link = (directory.path() / "usb-virtual-detector").string();
        const VirtualDevice device(options);
        const ProcessSignals processSignals;
        ScreenEngine screens(objects);
        screens.load();
        screens.fitToScreen();
        return QGuiApplication::exec();
    } catch (const std::exception &error) {
        std::fprintf(stderr, "./run --virtual: %s\n", error.what());
        return 1;
    }
}
