#include "process-signals.h"

#include <QCoreApplication>
#include <array>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array endingSignals = {SIGINT, SIGTERM, SIGHUP};

// A handler may do next to nothing, so it only writes into this pair, whose other end the event loop watches.
std::array<int, 2> wakeUp = {-1, -1};

void wake(int) {
    // Who asks again does not want to wait. A terminal that closes may hang up more than once.
    for (const int number : {SIGINT, SIGTERM})
        if (std::signal(number, SIG_DFL) == SIG_IGN)
            std::signal(number, SIG_IGN);
    const int interrupted = errno; // another thread may be about to look at it
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(wakeUp[0], &byte, sizeof byte);
    errno = interrupted;
}

int openWakeUp() {
    ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, wakeUp.data());
    return wakeUp[1];
}

} // namespace

ProcessSignals::ProcessSignals()
    : notifier(openWakeUp(), QSocketNotifier::Read) {
    QObject::connect(&notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    // What the process was started to ignore (nohup, a script's background job) stays ignored.
    for (const int number : endingSignals)
        if (std::signal(number, wake) == SIG_IGN)
            std::signal(number, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN); // who reads the log may go, the connection stays
}

ProcessSignals::~ProcessSignals() {
    for (const int number : endingSignals)
        std::signal(number, SIG_DFL);
    std::signal(SIGPIPE, SIG_DFL);
    for (int &end : wakeUp) {
        ::close(end);
        end = -1;
    }
}
