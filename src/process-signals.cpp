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

// A handler may do next to nothing, so it only writes into this pair, whose other end the event loop watches.
std::array<int, 2> wakeUp = {-1, -1};

/// In ms. Who asks twice in a row, or holds Ctrl-C down, still leaves the time to stop the device's scan.
constexpr long long GRACE = 1000;

long long nowMs() {
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000LL + now.tv_nsec / 1000000;
}

std::atomic<long long> firstMs{0}; // 0: nobody has asked yet

void wake(int number) {
    const int interrupted = errno; // another thread may be about to look at it
    long long first = 0;
    const long long now = nowMs();
    if (!firstMs.compare_exchange_strong(first, now)) {
        // A terminal that closes may hang up more than once.
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
    firstMs = 0;
    for (int &end : wakeUp) {
        ::close(end);
        end = -1;
    }
}
