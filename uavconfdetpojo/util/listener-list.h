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
    /// what it refers to may go. One case apart, which would wait for ever: called from inside a listener, it
    /// does not wait for a thread that waits itself, directly or through others, for that listener's end. Of
    /// a listener that was added twice in a row, one stays.
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

    /// Calls `call(Listener &)` for each listener in order. An exception of a call ends the round.
    template <class Call>
    void fire(Call call) {
        Round round;
        std::unique_lock lock(mutex); // held all the time but while a listener runs
        const Entry entry(*this, round, lock);
        while (round.next != listeners.size()) {
            std::shared_ptr<Listener> listener = listeners[round.next++]; // outlives its own removal
            round.running = listener.get();
            lock.unlock();
            call(*listener);
            listener.reset(); // not under the lock: what goes with it may use the list
            lock.lock();
            round.running = nullptr;
            changed.notify_all();
        }
    }

private:
    /// One pass of one thread over the listeners; lives on the stack of `fire`.
    struct Round {
        std::size_t next = 0;
        const Listener *running = nullptr;
        const std::thread::id thread = std::this_thread::get_id();
        const Listener *removing = nullptr; // what its thread waits for inside `remove`
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

    /// Tells the others what this thread's rounds wait for. Under the lock, as the next one.
    void markRemoving(std::thread::id self, const Listener *removing) {
        for (Round *round : rounds)
            if (round->thread == self)
                round->removing = removing;
        changed.notify_all();
    }

    /// Whether a round's listener cannot end before those of the thread do: it waits for them, directly or
    /// through others, of which there are at most `links`.
    bool waitsFor(const Round &round, std::thread::id thread, std::size_t links) const {
        return round.removing && links > 0 &&
               std::any_of(
                   rounds.begin(), rounds.end(),
                   [&](const Round *other) {
                       return other->running == round.removing && other->thread != round.thread &&
                              (other->thread == thread || waitsFor(*other, thread, links - 1));
                   });
    }

    std::mutex mutex; // guards everything below, also what the rounds hold
    std::condition_variable changed;
    std::vector<std::shared_ptr<Listener>> listeners;
    std::vector<Round *> rounds;
};

} // namespace kelvane
