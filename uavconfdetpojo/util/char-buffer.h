#pragma once

#include <string>

inline namespace kelvane {

/// Bytes as they are on the line, in no encoding.
using buffer_t = std::string;

/// Collects the chunks of a byte stream. The cost of a byte does not grow with the size of the buffer.
class CharBuffer {
public:
    void write(const std::string &bytes) { joined += bytes; }
    /// Empties the buffer and frees its memory if that is large.
    void reset();
    int size() const { return static_cast<int>(joined.size()); }
    /// All bytes since the last reset; valid until the next call of another operation.
    const std::string &toString() const { return joined; }

private:
    std::string joined;
};

} // namespace kelvane
