#pragma once

#include <atomic>
#include <chrono>
#include <thread>

/// The body of a link's reading thread. `readBlock` waits for bytes for a while, delivers them and tells
/// whether some came. It goes on after errors, as a link learns only by `closed` that its time is over.
template <typename ReadBlock>
void readUntil(const std::atomic<bool> &closed, ReadBlock readBlock) {
    constexpr std::chrono::milliseconds PAUSE{50};
    while (!closed) {
        const auto start = std::chrono::steady_clock::now();
        // A device that was pulled out answers every read at once, which must not cost processor time.
        if (!readBlock() && std::chrono::steady_clock::now() - start < PAUSE)
            std::this_thread::sleep_for(PAUSE);
    }
}
