#pragma once

#include "messages.h"
#include "serial-interface.h"

#include <deque>

/// A listener that keeps its messages, for tests that wait for messages from another thread.
class Inbox {
public:
    const std::shared_ptr<MsgListener> listener =
        std::make_shared<MsgListener>([this](const std::shared_ptr<Msg> &msg) {
            const std::lock_guard lock(mutex);
            messages.push_back(msg);
            arrived.notify_all();
        });

    /// Takes the next message of this class and drops those before it. Null if none comes within a minute.
    template <typename Message>
    std::shared_ptr<Message> next() {
        std::unique_lock lock(mutex);
        std::shared_ptr<Message> found;
        arrived.wait_for(lock, 1min, [&] {
            for (; !found && !messages.empty(); messages.pop_front())
                found = messageCast<Message>(messages.front());
            return found != nullptr;
        });
        return found;
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
