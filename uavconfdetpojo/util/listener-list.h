#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

/// Listeners in the order of adding, each known by its shared pointer. Every operation may be called from any
/// thread and from inside a listener. No lock is held while a listener runs; several threads may fire at
/// once, and then run the same listener at once.
template <class Listener>
class ListenerList {
public:
    /// A listener that is added while others run is called in the same round, as the last one.
    void add(std::shared_ptr<Listener> listener) {
        const std::lock_guard lock(mutex);
        listeners.push_back(std::move(listener));
    }

    /// Once this has returned, the listener is running on no other thread and will not run again, so that
    /// what it refers to may go. Only where two running listeners remove each other, one of them does not
    /// wait. Of a listener that was added twice in a row, one stays.
    void remove(std::shared_ptr<Listener> listener) {
        std::unique_lock lock(mutex);
        for (std::size_t i = 0; i < listeners.size(); ++i) {
            if (listeners[i] == listener) {
                listeners.erase(listeners.begin() + static_cast<std::ptrdiff_t>(i));
                for (Round *round : rounds)
                    round->next -= i < round->next ? 1 : 0;
            }
        }
        const auto self = std::this_thread::get_id();
        const bool inside = markRemoving(self, true);
        changed.wait(lock, [&] {
            return std::none_of(rounds.begin(), rounds.end(), [&](const Round *round) {
                return round->running == listener.get() && round->thread != self &&
                       !(inside && round->removing);
            });
        });
        markRemoving(self, false);
    }

    /// Calls `call(Listener &)` for each listener in order. An exception of a call ends the round.
    template <class Call>
    void fire(Call call) {
        Round round;
        const Entry entry(*this, round);
        std::shared_ptr<Listener> listener; // keeps it alive through its own removal
        const auto step = [&] {
            listener.reset(); // not under the lock: what goes with it may use the list
            const std::lock_guard lock(mutex);
            round.running = nullptr;
            changed.notify_all();
            if (round.next == listeners.size())
                return false;
            listener = listeners[round.next++];
            round.running = listener.get();
            return true;
        };
        while (step())
            call(*listener);
    }

private:
    /// One pass of one thread over the listeners; lives on the stack of `fire`.
    struct Round {
        std::size_t next = 0;
        const Listener *running = nullptr;
        const std::thread::id thread = std::this_thread::get_id();
        bool removing = false; // its listener waits inside `remove`
    };

    class Entry {
    public:
        Entry(ListenerList &owner, Round &ofRound)
            : list(owner)
            , round(ofRound) {
            const std::lock_guard lock(list.mutex);
            list.rounds.push_back(&round);
        }
        ~Entry() {
            const std::lock_guard lock(list.mutex);
            list.rounds.erase(std::find(list.rounds.begin(), list.rounds.end(), &round));
            list.changed.notify_all();
        }

    private:
        ListenerList &list;
        Round &round;
    };

    /// Whether this thread is in a round. Under the lock.
    bool markRemoving(std::thread::id self, bool removing) {
        bool found = false;
        for (Round *round : rounds) {
            if (round->thread == self) {
                round->removing = removing;
                found = true;
            }
        }
        changed.notify_all();
        return found;
    }

    std::mutex mutex; // guards everything below, also what the rounds hold
    std::condition_variable changed;
    std::vector<std::shared_ptr<Listener>> listeners;
    std::vector<Round *> rounds;
};
