#pragma once

#include "serial-interface.h"

#include <condition_variable>
#include <mutex>

/// A listener that keeps what it gets, for tests that wait for messages from another thread.
class Inbox {
public:
    const std::shared_ptr<MsgListener> listener =
        std::make_shared<MsgListener>([this](const std::shared_ptr<Msg> &msg) {
            const std::lock_guard lock(mutex);
            messages.push_back(msg);
            arrived.notify_all();
        });

    /// The message with this number, counted from 0; null when none has come within a generous time.
    template <typename Message = Msg>
    std::shared_ptr<Message> at(std::size_t number) {
        std::unique_lock lock(mutex);
        arrived.wait_for(lock, std::chrono::seconds(60), [&] { return messages.size() > number; });
        return messages.size() > number ? std::static_pointer_cast<Message>(messages[number]) : nullptr;
    }

    std::size_t size() {
        const std::lock_guard lock(mutex);
        return messages.size();
    }

private:
    std::mutex mutex;
    std::condition_variable arrived;
    std::vector<std::shared_ptr<Msg>> messages;
};
