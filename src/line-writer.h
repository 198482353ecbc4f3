#pragma once

#include "serial-interface.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>

inline namespace kelvane {

/// Sends requests over a terminal that takes bytes in pieces, each request whole and in order.
///
/// A request of which the line takes nothing within its time-out is not sent. One that has begun is never
/// cut: what the line has not taken yet, the rest, stays here and leaves before anything else begins. Whoever
/// waits here tries to send it on, and so does the reading thread.
///
/// Room is what a write takes. A driver of USB lines reports none while a single piece is under way, although
/// it would take fifteen more, so whoever waits tries a write each millisecond. Any thread may call; no lock
/// is held while one waits, so that nobody waits longer than for its own time.
class LineWriter {
public:
    /// `onRest` is called when a rest has come to be, under the lock of this object.
    explicit LineWriter(std::function<void()> onRest);

    /// Sends to this terminal from now on, which must not block. There is none before, nor after `finish`.
    void use(int newTerminal);
    /// Blocks for the time-out at most. `Sent::CLOSED` without a terminal, or where it goes meanwhile.
    Sent send(const std::string &bytes, std::chrono::milliseconds timeout);
    bool hasRest() const;
    /// Sends on what the line takes now; false where it takes nothing.
    bool sendRest();
    /// Lets nothing begin any more but `last`, after what has begun before, and waits until all bytes have
    /// left the computer; for `patience` at most. Then drops what has not, the bytes in the driver too: the
    /// system's close would wait for them, for half a minute with a device that takes none.
    void finish(std::chrono::milliseconds patience, const std::string &last);

private:
    bool begin(const std::string &bytes);
    bool push();
    bool holdsUnsent(bool isToBegin);

    const std::function<void()> onRest;

    mutable std::mutex mutex; // guards everything below
    std::condition_variable changed;
    int terminal = -1;
    bool finishing = false;
    std::string rest;   // of the request that began last
    unsigned begun = 0; // requests
    unsigned lines = 0; // terminals that are done with
};

} // namespace kelvane
