#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

inline namespace kelvane {

/// Listeners in the order of adding. A listener is identified by its shared pointer. Every operation may be
/// called from any thread and from inside a listener. No lock is held while a listener runs. Several threads
/// may fire at once, and may then run the same listener at once.
template <class Listener>
class ListenerList {
public:
    /// A listener that is added during a round is called in the same round, as the last one.
    void add(std::shared_ptr<Listener> listener) {
        const std::lock_guard lock(mutex);
        listeners.push_back(std::move(listener));
    }

    /// When this has returned, the listener runs on no other thread and will not run again. The objects that
    /// it uses may then be destroyed. There is one exception: two listeners on two threads may remove each
    /// other. Each would wait for the other's end and never return. So inside a listener this call does not
    /// wait for a thread that waits for the caller's thread, directly or through others. If a listener was
    /// added twice in a row, one of the two stays.
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
        markRemoving(self, listener.get());
        changed.wait(lock, [&] {
            return std::none_of(rounds.begin(), rounds.end(), [&](const Round *round) {
                return round->running == listener.get() && round->thread != self &&
                       !waitsFor(*round, self, rounds.size());
            });
        });
        markRemoving(self, nullptr);
    }

    /// Calls `call(Listener &)` for each listener in order: a round. An exception of a call ends the round.
    template <class Call>
    void fire(Call call) {
        Round round;
        std::unique_lock lock(mutex); // not held while a listener runs
        const Entry entry(*this, round, lock);
        while (round.next != listeners.size()) {
            std::shared_ptr<Listener> listener = listeners[round.next++]; // lives on if removed
            round.running = listener.get();
            lock.unlock();
            call(*listener);
            listener.reset(); // not under the lock: its destruction may use the list
            lock.lock();
            round.running = nullptr;
            changed.notify_all();
        }
    }

private:
    /// One pass of a thread over the listeners. Lives on the stack of `fire`.
    struct Round {
        std::size_t next = 0;
        const Listener *running = nullptr;
        const std::thread::id thread = std::this_thread::get_id();
        const Listener *removing = nullptr; // the listener for whose end its thread waits inside `remove`
    };

    class Entry {
    public:
        Entry(ListenerList &owner, Round &ofRound, std::unique_lock<std::mutex> &ofList)
            : list(owner)
            , round(ofRound)
            , lock(ofList) {
            list.rounds.push_back(&round);
        }
        ~Entry() {
            if (!lock.owns_lock()) // a listener threw
                lock.lock();
            list.rounds.erase(std::find(list.rounds.begin(), list.rounds.end(), &round));
            list.changed.notify_all();
        }

    private:
        ListenerList &list;
        Round &round;
        std::unique_lock<std::mutex> &lock;
    };

    /// Notes for the other threads which listener this thread's rounds wait for. The lock is held here and in
    /// the next function.
    void markRemoving(std::thread::id self, const Listener *removing) {
        for (Round *round : rounds)
            if (round->thread == self)
                round->removing = removing;
        changed.notify_all();
    }

    /// Whether the round waits for a listener that runs on `thread`, directly or through at most `links`
    /// other rounds.
    bool waitsFor(const Round &round, std::thread::id thread, std::size_t links) const {
        return round.removing && links > 0 &&
               std::any_of(
                   rounds.begin(), rounds.end(),
                   [&](const Round *other) {
                       return other->running == round.removing && other->thread != round.thread &&
                              (other->thread == thread || waitsFor(*other, thread, links - 1));
                   });
    }

    std::mutex mutex; // guards everything below, also the rounds' members
    std::condition_variable changed;
    std::vector<std::shared_ptr<Listener>> listeners;
    std::vector<Round *> rounds;
};

} // namespace kelvane
