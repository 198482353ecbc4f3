#include "process-signals.h"

#include <QCoreApplication>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array endingSignals = {SIGINT, SIGTERM, SIGHUP};

// A signal handler may call only a few functions. So it only writes into this pair of sockets. The event loop
// watches the other end.
std::array<int, 2> wakeUp = {-1, -1};

/// In ms. Even if the user presses Ctrl-C twice or holds it down, there is time to stop the device's scan.
constexpr long long GRACE = 1000;

long long nowMs() {
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000LL + now.tv_nsec / 1000000;
}

std::atomic<long long> firstMs{0}; // 0: no signal yet

void wake(int number) {
    const int interrupted = errno; // the interrupted code may be about to read it
    long long first = 0;
    const long long now = nowMs();
    if (!firstMs.compare_exchange_strong(first, now)) {
        // A terminal that closes may send SIGHUP more than once.
        if (number != SIGHUP && now - first >= GRACE) {
            std::signal(number, SIG_DFL);
            ::raise(number); // ends the process when this handler returns
        }
    } else {
        const char byte = 0;
        [[maybe_unused]] const auto written = ::write(wakeUp[0], &byte, sizeof byte);
    }
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
    // A signal that was ignored at the start (nohup, a script's background job) stays ignored.
    for (const int number : endingSignals)
        if (std::signal(number, wake) == SIG_IGN)
            std::signal(number, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN); // the reader of the log may end, the connection stays
}

ProcessSignals::~ProcessSignals() {
    for (const int number : endingSignals)
        std::signal(number, SIG_DFL);
    std::signal(SIGPIPE, SIG_DFL);
    firstMs = 0;
    for (int &end : wakeUp) {
        ::close(end);
        end = -1;
    }
}
