#include "bounded-write.h"

#include <atomic>
#include <csignal>
#include <future>
#include <mutex>
#include <poll.h>
#include <pthread.h>
#include <thread>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

/// Ends a system call of the thread that gets it, and does nothing else. The system ignores it by default, so
/// that a stray one does no harm.
constexpr int INTERRUPTION = SIGURG;
/// One that comes before the call waits is lost, so they come again and again.
constexpr std::chrono::milliseconds INTERRUPTION_PERIOD{10};

void makeInterruptible() {
    static std::once_flag once;
    std::call_once(once, [] {
        struct sigaction action = {};
        action.sa_handler = [](int) {};
        sigaction(INTERRUPTION, &action, nullptr); // without SA_RESTART
    });
}

int msUntil(Clock::time_point deadline) {
    using namespace std::chrono;
    return static_cast<int>(std::max<long long>(0, ceil<milliseconds>(deadline - Clock::now()).count()));
}

bool hasRoom(int terminal, int stop, Clock::time_point deadline) {
    pollfd waited[] = {{terminal, POLLOUT, 0}, {stop, POLLIN, 0}};
    return poll(waited, 2, msUntil(deadline)) > 0 && waited[1].revents == 0;
}

} // namespace

void writeWithin(std::chrono::milliseconds timeout, int terminal, int stop, const char *bytes,
                 std::size_t count) {
    const auto deadline = Clock::now() + timeout;
    if (!hasRoom(terminal, stop, deadline))
        return;
    makeInterruptible();
    std::promise<void> written;
    std::thread watch([deadline, stop, writer = pthread_self(), done = written.get_future()] {
        const auto over = [&] {
            pollfd stopped{stop, POLLIN, 0};
            return Clock::now() >= deadline || poll(&stopped, 1, 0) > 0;
        };
        while (done.wait_for(INTERRUPTION_PERIOD) != std::future_status::ready)
            if (over())
                pthread_kill(writer, INTERRUPTION);
    });
    [[maybe_unused]] const auto taken = ::write(terminal, bytes, count);
    written.set_value();
    watch.join();
}
