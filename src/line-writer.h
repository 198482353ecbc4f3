#pragma once

#include "serial-interface.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>

inline namespace kelvane {

/// Sends requests over a terminal that takes bytes in pieces. Each request arrives whole, and they arrive in
/// order.
///
/// If the line takes no byte of a request within its time-out, the request is not sent. If the line has taken
/// a part, the request is never cut. The bytes that the line has not taken yet are the rest. The rest stays
/// here and leaves before the next request. Every thread that waits here tries to send it, and so does the
/// reading thread.
///
/// Only a write shows whether the line has room. A driver of USB lines reports no room while one piece is
/// under way, although it would take fifteen more. So a waiting thread tries a write every millisecond. Any
/// thread may call. A waiting thread holds no lock, so no thread waits longer than its own time-out.
class LineWriter {
public:
    /// `onRest` is called when there is a new rest. The lock of this object is held meanwhile.
    explicit LineWriter(std::function<void()> onRest);

    /// Sends to this terminal from now on. Its descriptor must be non-blocking. There is no terminal before
    /// the first call, nor after `finish`.
    void use(int newTerminal);
    /// Blocks for the time-out at most. Returns `Sent::CLOSED` if there is no terminal, or if it goes
    /// meanwhile.
    Sent send(const std::string &bytes, std::chrono::milliseconds timeout);
    bool hasRest() const;
    /// Sends what the line takes of the rest now. Returns false if it takes nothing.
    bool sendRest();
    /// Sends the rest, then `last`, and no other request any more. Waits until all bytes have left the
    /// computer, for `patience` at most. Then drops the others, the bytes in the driver too. Otherwise the
    /// system's close would wait for those, up to half a minute if the device takes none.
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
    std::string rest;   // of the newest request
    unsigned begun = 0; // number of requests
    unsigned lines = 0; // number of terminals before
};

} // namespace kelvane
