#pragma once

#include <chrono>
#include <cstdint>

inline namespace kelvane {

/// Time since the program started.
class Uptime {
public:
    /// Milliseconds on the monotonic clock, which no change of the system's time touches.
    static std::int64_t getMs();

private:
    static const std::chrono::steady_clock::time_point startTime;
};

} // namespace kelvane
