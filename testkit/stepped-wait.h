#pragma once

#include <atomic>
#include <ctime>
#include <functional>
#include <pthread.h>

/// Calls a function once, on the next thread that begins to wait with a time-out, between its look at what it
/// waits for and the wait. The thread holds the lock that goes with it. One at a time, in a program that
/// links the target.
class SteppedWait {
public:
    explicit SteppedWait(std::function<void()> atTheWait)
        : call(std::move(atTheWait)) {
        waited = this;
    }
    ~SteppedWait() { waited = nullptr; }
    SteppedWait(const SteppedWait &) = delete;
    SteppedWait &operator=(const SteppedWait &) = delete;

    static void step() {
        if (SteppedWait *self = waited.exchange(nullptr))
            self->call();
    }

private:
    static inline std::atomic<SteppedWait *> waited{nullptr};
    const std::function<void()> call;
};

extern "C" {
int __real_pthread_cond_clockwait(pthread_cond_t *, pthread_mutex_t *, clockid_t, const timespec *);

[[gnu::used]] inline int __wrap_pthread_cond_clockwait(pthread_cond_t *condition, pthread_mutex_t *mutex,
                                                       clockid_t clock, const timespec *until) {
    SteppedWait::step();
    return __real_pthread_cond_clockwait(condition, mutex, clock, until);
}
}
