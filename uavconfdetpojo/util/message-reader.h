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

/// Finds the messages in a stream of bytes. It has no thread, no lock and no clock of its own: whoever calls
/// it brings the bytes and the time.
///
/// An object ends where its braces close, and a device puts a line end behind each. What stands between
/// objects is skipped; an object that cannot be read, or is of no known type, is a line in the log.
class MessageReader {
public:
    /// So long, in ms, bytes may go on arriving without an object's end before they are given up.
    static constexpr long long LAST_PARSED_TIMEOUT = 5000;

    /// Gets each line for the log, with the operation of `Log` that it is for.
    using Logger = std::function<void(void (*operation)(const std::string &tag, const std::string &msg),
                                      const std::string &msg)>;

    /// `nowMs`, here and below, is on one clock of the caller's choice. Lines go to the log at once.
    MessageReader(const std::string &logTag, long long nowMs);
    /// `logger` is called inside `next`.
    MessageReader(Logger logger, long long nowMs);

    /// Takes the next bytes; `next` is then to be called until it gives null.
    void write(const buffer_t &bytes, long long nowMs);
    /// The next message that ended in the bytes so far. Null when there is none left: bytes that are done
    /// with are dropped then, and where no object has ended for too long all bytes are given up, but for the
    /// newest object that began on a line of its own.
    std::shared_ptr<Msg> next(long long nowMs);

    /// Drops the bytes. Messages that ended in them are still handed out.
    void reset();
    /// The bytes that are not done with yet; valid until the next call of another operation.
    const std::string &bytes() const { return buffer.toString(); }
    bool isEmpty() const { return buffer.size() == 0; }

    /// For log lines. On purpose a piece is as long as the position of its end, so that all but the first run
    /// long, and what stands behind the last delimiter is left out.
    static std::vector<std::string> split(const std::string &text, const std::string &delimiter);

private:
    void endChunk(long long nowMs);
    void recover();
    void logBuffer(const std::string &title, const std::string &all) const;

    const Logger log;
    CharBuffer buffer;
    JsonBraceCounter jbc;                   // over the bytes of `buffer`
    std::deque<std::pair<int, int>> frames; // not handed out yet: positions of their first and last brace
    std::size_t orphans = 0;                // the first of `frames`, if their bytes were dropped meanwhile
    std::string orphaned;                   // those bytes
    bool chunkOpen = false;                 // between `write` and the `next` that gives null
    bool wasEmpty = true;                   // before the chunk
    int lastEnd = -1;                       // of the chunk's last frame; -1: none ended
    long long lastParsed;                   // ms
};

} // namespace kelvane
