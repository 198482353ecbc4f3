#pragma once

#include "messages.h"
#include "serial-interface.h"

#include <deque>

/// A listener that keeps its messages, for tests that wait for messages from another thread.
class Inbox {
    using Clock = std::chrono::steady_clock;
    static Clock::time_point inAMinute() { return Clock::now() + std::chrono::minutes(1); }

public:
    const std::shared_ptr<MsgListener> listener =
        std::make_shared<MsgListener>([this](const std::shared_ptr<Msg> &msg) {
            const std::lock_guard lock(mutex);
            messages.push_back(msg);
            arrived.notify_all();
        });

    /// Takes the next message. Null if none comes until then.
    std::shared_ptr<Msg> next(Clock::time_point end = inAMinute()) {
        std::unique_lock lock(mutex);
        if (!arrived.wait_until(lock, end, [&] { return !messages.empty(); }))
            return nullptr;
        const std::shared_ptr<Msg> msg = std::move(messages.front());
        messages.pop_front();
        return msg;
    }
    /// Takes the next message of this class and drops those before it. Null if none comes within a minute.
    template <typename Message>
    std::shared_ptr<Message> next() {
        const auto end = inAMinute();
        while (const std::shared_ptr<Msg> msg = next(end))
            if (auto found = messageCast<Message>(msg); found || Clock::now() > end)
                return found;
        return nullptr;
    }

    /// Takes all messages that have come.
    std::deque<std::shared_ptr<Msg>> take() {
        const std::lock_guard lock(mutex);
        return std::exchange(messages, {});
    }

private:
    std::mutex mutex;
    std::condition_variable arrived;
    std::deque<std::shared_ptr<Msg>> messages;
};
