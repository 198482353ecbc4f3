#pragma once

#include <ctime>
#include <functional>
#include <pthread.h>
#include <utility>

/// Calls two functions once, when the thread that made this object begins to wait with a time-out. The first
/// one is called between the thread's look at what it waits for and the wait. The thread holds the lock that
/// goes with it. The second one is called after the wait without the lock. So the thread wakes up as late as
/// this function likes. One object at a time in a thread, in a program that links the target.
class SteppedWait {
public:
    explicit SteppedWait(
        std::function<void()> atTheWait, std::function<void()> afterTheWait = [] {})
        : before(std::move(atTheWait))
        , after(std::move(afterTheWait)) {
        waited = this;
    }
    ~SteppedWait() { waited = nullptr; }
    SteppedWait(const SteppedWait &) = delete;
    SteppedWait &operator=(const SteppedWait &) = delete;

    /// The object that steps the wait that begins now; null if none does.
    static SteppedWait *take() { return std::exchange(waited, nullptr); }

    const std::function<void()> before, after;

private:
    static inline thread_local SteppedWait *waited = nullptr;
};

extern "C" {
int __real_pthread_cond_clockwait(pthread_cond_t *, pthread_mutex_t *, clockid_t, const timespec *);

[[gnu::used]] inline int __wrap_pthread_cond_clockwait(pthread_cond_t *condition, pthread_mutex_t *mutex,
                                                       clockid_t clock, const timespec *until) {
    const SteppedWait *const step = SteppedWait::take();
    if (!step)
        return __real_pthread_cond_clockwait(condition, mutex, clock, until);
    step->before();
    const int result = __real_pthread_cond_clockwait(condition, mutex, clock, until);
    pthread_mutex_unlock(mutex);
    step->after();
    pthread_mutex_lock(mutex);
    return result;
}
}
