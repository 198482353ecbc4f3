#include "process-signals.h"

#include <QCoreApplication>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array endingSignals = {SIGINT, SIGTERM, SIGHUP};

// A handler may do next to nothing, so it only writes into this pair, whose other end the event loop watches.
std::array<int, 2> wakeUp = {-1, -1};

void wake(int) {
    const int interrupted = errno; // another thread may be about to look at it
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(wakeUp[0], &byte, sizeof byte);
    errno = interrupted;
}

/// A session leader without a terminal gets the first one that it opens, here the device: unplugging it would
/// then hang up on the process.
bool wouldTakeDeviceForTerminal() {
    if (::getsid(0) != ::getpid())
        return false;
    const int terminal = ::open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (terminal >= 0)
        ::close(terminal);
    return terminal < 0;
}

int openWakeUp() {
    ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, wakeUp.data());
    return wakeUp[1];
}

} // namespace

ProcessSignals::ProcessSignals()
    : notifier(openWakeUp(), QSocketNotifier::Read) {
    QObject::connect(&notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    for (const int number : endingSignals) {
        const bool ignored = number == SIGHUP && wouldTakeDeviceForTerminal();
        // What the process was started to ignore (nohup, a script's background job) stays ignored.
        if (std::signal(number, ignored ? SIG_IGN : wake) == SIG_IGN)
            std::signal(number, SIG_IGN);
    }
}

ProcessSignals::~ProcessSignals() {
    for (const int number : endingSignals)
        std::signal(number, SIG_DFL);
    for (int &end : wakeUp) {
        ::close(end);
        end = -1;
    }
}
