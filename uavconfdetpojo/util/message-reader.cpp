#include "message-reader.h"

#include "log.h"

#include <limits>
#include <stdexcept>

MessageReader::MessageReader(const std::string &logTag, long long nowMs)
    : MessageReader([logTag](auto operation, const std::string &msg) { operation(logTag, msg); }, nowMs) {}

MessageReader::MessageReader(Logger logger, long long nowMs)
    : log(std::move(logger))
    , lastParsed(nowMs) {}

void MessageReader::write(const buffer_t &bytes, long long nowMs) {
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max() - buffer.size()))
        reset(); // a position must fit into an int
    wasEmpty = isEmpty();
    buffer.write(bytes);
    const auto ended = jbc.write(bytes);
    if (wasEmpty || !ended.empty())
        lastParsed = nowMs;
    for (const auto &frame :
         ended) // most chunks end none, and inserting an empty range costs a tenth of a scan
        frames.push_back(frame);
    lastEnd = ended.empty() ? -1 : ended.back().second;
    chunkOpen = true;
}

std::shared_ptr<Msg> MessageReader::next(long long nowMs) {
    while (!frames.empty()) {
        const auto [first, second] = frames.front();
        frames.pop_front();
        const std::string &all = orphans > 0 ? orphaned : buffer.toString();
        orphans -= orphans > 0 ? 1 : 0;
        // On purpose: the second argument is the object's end, not its length. So the text goes too far
        // unless the object begins the buffer. A line end behind the object does no harm. But if another
        // object follows in the same chunk, this one cannot be read.
        const std::string frame =
            all.substr(static_cast<std::size_t>(first), static_cast<std::size_t>(second) + 1);
        try {
            if (auto msg = Msg::parseJson(frame))
                return msg;
            log(Log::write, "received unknown msg: " + frame);
        } catch (const std::invalid_argument *) { // On purpose: by pointer, which nobody throws.
        }
    }
    if (std::exchange(chunkOpen, false))
        endChunk(nowMs);
    return nullptr;
}

void MessageReader::endChunk(long long nowMs) {
    if (lastEnd == -1) {
        if (!wasEmpty && nowMs - lastParsed > LAST_PARSED_TIMEOUT) {
            recover();
            lastParsed = nowMs;
        }
        return;
    }
    // If an object has begun, all bytes before it stay too, because the counter's positions refer to them.
    if (bytes().find('{', static_cast<std::size_t>(lastEnd) + 1) == std::string::npos)
        reset();
}

/// Drops all but the newest object that began on a line of its own. An object that is complete already is not
/// returned.
void MessageReader::recover() {
    const std::string all = bytes();
    logBuffer("recvBuffer: ", all);
    log(Log::write, "reset recv buffer by LAST_PARSED_TIMEOUT");
    const auto border = all.rfind("}\n{");
    reset();
    if (border == std::string::npos) {
        log(Log::write, "reset all recv buffer");
        return;
    }
    const std::string kept = all.substr(border + 2);
    buffer.write(kept);
    jbc.write(kept);
    logBuffer("afterRecvBuffer: ", kept);
}

void MessageReader::reset() {
    if (orphans == 0)
        orphaned = frames.empty() ? std::string() : buffer.toString();
    else
        frames.resize(orphans); // second drop while messages wait: only the older bytes are kept
    orphans = frames.size();
    buffer.reset();
    jbc.reset();
    chunkOpen = false;
}

void MessageReader::logBuffer(const std::string &title, const std::string &all) const {
    log(Log::write, title);
    for (const std::string &piece : split(all, "\n"))
        log(Log::debug, "|" + piece);
}

std::vector<std::string> MessageReader::split(const std::string &text, const std::string &delimiter) {
    if (delimiter.empty() || text.find(delimiter) == text.npos)
        return {text};
    std::vector<std::string> pieces;
    std::size_t pos = 0;
    for (std::size_t i = 0; pos < text.size() && (i = text.find(delimiter, pos)) != text.npos;) {
        pieces.push_back(text.substr(pos, i));
        pos += pieces.back().size() + delimiter.size();
    }
    return pieces;
}
