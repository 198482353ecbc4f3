#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>

/// A figure is the best of several turns, in processor time. Other programs on the machine can only make a
/// turn slower.

inline double secondsOf(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Seconds of the fastest of `turns` calls.
template <typename Run>
double fastest(int turns, Run run) {
    double best = 1e300;
    for (int i = 0; i < turns; ++i) {
        const double begin = secondsOf(CLOCK_THREAD_CPUTIME_ID);
        run();
        best = std::min(best, secondsOf(CLOCK_THREAD_CPUTIME_ID) - begin);
    }
    return best;
}

/// The ratio of two runs. They alternate, so that both run under the same conditions.
template <typename Run, typename Yardstick>
double ratioOf(int turns, Run run, Yardstick yardstick) {
    double ours = 1e300, theirs = 1e300;
    for (int i = 0; i < turns; ++i) {
        ours = std::min(ours, fastest(1, run));
        theirs = std::min(theirs, fastest(1, yardstick));
    }
    return ours / theirs;
}

/// Prints the line that tools/bench reads.
inline void report(const char *row, double value, const char *unit) {
    std::printf("%s\t%.3f\t%s\n", row, value, unit);
}
