#pragma once

#include <atomic>
#include <chrono>
#include <thread>

inline namespace kelvane {

/// The body of a link's reading thread. `readBlock` waits for bytes for a while and delivers them. It returns
/// whether some came. On purpose: the loop goes on after errors, until the link is closed. An unplugged
/// device is not reported. It just sends nothing.
template <typename ReadBlock>
void readUntil(const std::atomic<bool> &closed, ReadBlock readBlock) {
    constexpr std::chrono::milliseconds PAUSE{50};
    while (!closed) {
        const auto start = std::chrono::steady_clock::now();
        // With an unplugged device every read returns at once. The pause saves the processor time.
        if (!readBlock() && !closed && std::chrono::steady_clock::now() - start < PAUSE)
            std::this_thread::sleep_for(PAUSE);
    }
}

} // namespace kelvane
