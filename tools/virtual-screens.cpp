// The program together with a virtual detector, the only device that it finds. The options are those of the
// virtual detector.

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
            std::printf("./run --virtual starts the program together with a virtual detector.\n"
                        "--link, --tap and --record work with tools/virtual-device only.\n\n%s",
                        deviceOptionsHelp().c_str());
            return 0;
        }
        if (!options.link.empty() || !options.tapped.empty())
            throw std::runtime_error("--link and --tap work with tools/virtual-device only");
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
