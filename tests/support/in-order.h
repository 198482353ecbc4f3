#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

/// Calls both on two threads, the second one after the first one. Nothing else puts the two threads in order,
/// so ThreadSanitizer sees each time that a lock is missing.
inline void inOrder(const std::function<void()> &first, const std::function<void()> &second) {
    std::atomic<bool> isDone{false};
    std::thread other([&] {
        first();
        isDone.store(true, std::memory_order_relaxed);
    });
    while (!isDone.load(std::memory_order_relaxed))
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    second();
    other.join();
}
