#pragma once

#include <string>

inline namespace kelvane {

/// Bytes of the wire, in no encoding.
using buffer_t = std::string;

/// Collects the chunks of a byte stream. A byte costs the same however much the buffer holds.
class CharBuffer {
public:
    void write(const std::string &bytes) { joined += bytes; }
    /// Empties the buffer and gives large memory back.
    void reset();
    int size() const { return static_cast<int>(joined.size()); }
    /// All bytes since the last reset; valid until the next call of another operation.
    const std::string &toString() const { return joined; }

private:
    std::string joined;
};

} // namespace kelvane
