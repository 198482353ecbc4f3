#pragma once

#include <atomic>
#include <chrono>
#include <thread>

inline namespace kelvane {

/// The body of a link's reading thread. `readBlock` waits for bytes for a while, delivers them and tells
/// whether some came. On purpose: it goes on after errors, so that a device that was pulled out shows only in
/// what does not come, until its link is closed.
template <typename ReadBlock>
void readUntil(const std::atomic<bool> &closed, ReadBlock readBlock) {
    constexpr std::chrono::milliseconds PAUSE{50};
    while (!closed) {
        const auto start = std::chrono::steady_clock::now();
        // A device that was pulled out answers every read at once, which must not cost processor time.
        if (!readBlock() && !closed && std::chrono::steady_clock::now() - start < PAUSE)
            std::this_thread::sleep_for(PAUSE);
    }
}

} // namespace kelvane
