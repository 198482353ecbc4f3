// Plays a detector on a pseudo-terminal, or sits between a real detector and the program.

#include "line-tap.h"
#include "virtual-device.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

/// A descriptor that can be read after a signal that asks the process to end. The signal itself does nothing.
int endingEvent() {
    sigset_t ending;
    sigemptyset(&ending);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&ending, number);
    sigprocmask(SIG_BLOCK, &ending, nullptr); // before the first thread starts, because threads inherit it
    return checked(signalfd(-1, &ending, SFD_CLOEXEC), "signalfd");
}

void play(const DeviceOptions &options, int ending) {
    if (options.tapped.empty()) {
        const VirtualDevice device(options);
        pollfd end{ending, POLLIN, 0};
        poll(&end, 1, -1);
        return;
    }
    LineTap tap(options.tapped, options.link, options.record);
    std::printf("Between %s and %s\n", options.tapped.c_str(),
                options.link.empty() ? tap.terminal().c_str() : options.link.c_str());
    tap.run(ending);
}

} // namespace

int main(int argc, char **argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    std::signal(SIGPIPE, SIG_IGN); // it goes on if nobody reads its output any more
    try {
        const DeviceOptions options = parseDeviceOptions(argc, argv);
        if (options.help)
            std::printf("Usage: uav-vesper-device [OPTIONS]\n"
                        "       uav-vesper-device --tap DEVICE --record FILE [--link PATH]\n\n"
                        "It plays a detector of drone signals on a terminal, until Ctrl-C.\n\n%s",
                        deviceOptionsHelp().c_str());
        else
            play(options, endingEvent());
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "uav-vesper-device: %s\n", error.what());
        return 1;
    }
}
