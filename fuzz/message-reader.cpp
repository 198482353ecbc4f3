// Reads a stream in chunks of any size, at any time. In the input, a byte with the chunk's size and a byte
// with the time since the last chunk, in fifths of a second, go before each chunk.

#include "message-reader.h"

#include "fuzz.h"
#include "log.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Log::setSink([](const std::string &) {});
    long long nowMs = 0;
    MessageReader reader("fuzz", nowMs);
    std::size_t arrived = 0;
    for (std::size_t at = 0; at + 2 <= size;) {
        const std::size_t count = std::min<std::size_t>(data[at], size - at - 2);
        nowMs += 200 * data[at + 1];
        reader.write(std::string(reinterpret_cast<const char *>(data + at + 2), count), nowMs);
        at += 2 + count;
        arrived += count;
        std::size_t messages = 0;
        while (reader.next(nowMs))
            require(++messages <= arrived, "more messages than bytes", reader.bytes());
        require(reader.bytes().size() <= arrived, "more bytes than came", reader.bytes());
        if (count == 255)
            reader.reset();
    }
    return 0;
}
