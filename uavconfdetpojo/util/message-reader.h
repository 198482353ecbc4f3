#pragma once

#include "json-brace-counter.h"
#include "msg/msg.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

inline namespace kelvane {

/// Finds the messages in a stream of bytes. It has no thread, no lock and no clock. The caller passes the
/// bytes and the time.
///
/// An object ends with its closing brace. A device sends a line end after each object. Bytes between objects
/// are skipped. An object that cannot be read or has an unknown type is logged.
class MessageReader {
public:
    /// In ms. If no object has ended for longer than this when bytes arrive, the bytes are dropped.
    static constexpr long long LAST_PARSED_TIMEOUT = 5000;

    /// Gets each line for the log, with the operation of `Log` that would write it.
    using Logger = std::function<void(void (*operation)(const std::string &tag, const std::string &msg),
                                      const std::string &msg)>;

    /// `nowMs`, here and below, is the time of a clock that the caller chooses. Lines go to `Log` at once.
    MessageReader(const std::string &logTag, long long nowMs);
    /// `logger` is called inside `next`.
    MessageReader(Logger logger, long long nowMs);

    /// Adds the next bytes. Call `next` afterwards until it returns null.
    void write(const buffer_t &bytes, long long nowMs);
    /// Returns the next message that has ended, or null if there is none left. At a null, bytes that are no
    /// longer needed are dropped. If no object has ended for too long, all bytes are dropped except the
    /// newest object that began on a line of its own.
    std::shared_ptr<Msg> next(long long nowMs);

    /// Drops the bytes. `next` still returns the messages that ended in them.
    void reset();
    /// The bytes that are kept; valid until the next call of another operation.
    const std::string &bytes() const { return buffer.toString(); }
    bool isEmpty() const { return buffer.size() == 0; }

    /// Splits a text for the log. On purpose: the length of a piece is the position of its end. So all pieces
    /// but the first are too long. Text behind the last delimiter is left out.
    static std::vector<std::string> split(const std::string &text, const std::string &delimiter);

private:
    void endChunk(long long nowMs);
    void recover();
    void logBuffer(const std::string &title, const std::string &all) const;

    const Logger log;
    CharBuffer buffer;
    JsonBraceCounter jbc;                   // over the bytes of `buffer`
    std::deque<std::pair<int, int>> frames; // not returned yet: positions of their first and last brace
    std::size_t orphans = 0;                // number of first `frames` whose bytes were dropped meanwhile
    std::string orphaned;                   // those bytes
    bool chunkOpen = false;                 // between `write` and the `next` that gives null
    bool wasEmpty = true;                   // before the chunk
    int lastEnd = -1;                       // of the chunk's last frame; -1: none ended
    long long lastParsed;                   // ms
};

} // namespace kelvane
