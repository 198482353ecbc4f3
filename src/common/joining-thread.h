#pragma once

#include <thread>
#include <utility>

inline namespace kelvane {

/// A thread that its owner waits for, at the latest in the owner's destructor. The owner makes sure that the
/// body ends. Calls must not overlap, and must not come from the body.
class JoiningThread {
public:
    JoiningThread() = default;
    ~JoiningThread() { finish(); }
    JoiningThread(const JoiningThread &) = delete;
    JoiningThread &operator=(const JoiningThread &) = delete;

    /// Waits for the body before, then starts this one.
    template <typename Body>
    void start(Body body) {
        finish();
        thread = std::thread(std::move(body));
    }
    /// True when a body was started and nobody has waited for it yet. It may have ended by itself.
    bool isStarted() const { return thread.joinable(); }
    /// Waits for the body. Throws std::system_error if none was started since the last wait.
    void join() { thread.join(); }
    /// Waits for the body if one was started.
    void finish() {
        if (isStarted())
            join();
    }

private:
    std::thread thread;
};

} // namespace kelvane
