#include "uptime.h"

const std::chrono::steady_clock::time_point Uptime::startTime = std::chrono::steady_clock::now();

std::int64_t Uptime::getMs() {
    const auto elapsed = std::chrono::steady_clock::now() - startTime;
    return std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count();
}
