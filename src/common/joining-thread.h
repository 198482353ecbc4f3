#pragma once

#include <thread>
#include <utility>

inline namespace kelvane {

/// A thread that is waited for, at the latest where its owner ends; the owner sees to it that the body comes
/// to an end. One thread at a time uses it, never the body.
class JoiningThread {
public:
    JoiningThread() = default;
    ~JoiningThread() { finish(); }
    JoiningThread(const JoiningThread &) = delete;
    JoiningThread &operator=(const JoiningThread &) = delete;

    /// Waits for the last body before it starts this one.
    template <typename Body>
    void start(Body body) {
        finish();
        thread = std::thread(std::move(body));
    }
    /// A body was started and not waited for yet; it may have ended by itself.
    bool isStarted() const { return thread.joinable(); }
    /// Waits for the body. Throws std::system_error where none was started since the last wait.
    void join() { thread.join(); }
    /// Waits for the body where one was started.
    void finish() {
        if (isStarted())
            join();
    }

private:
    std::thread thread;
};

} // namespace kelvane
