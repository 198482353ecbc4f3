#pragma once

#include <list>
#include <string>

/// Bytes of the wire, in no encoding.
using buffer_t = std::string;

/// Collects the chunks of a byte stream and joins them only when asked. What was joined once stays joined, so
/// that a byte costs the same however much the buffer holds.
class CharBuffer {
public:
    void write(std::string bytes);
    /// Empties the buffer and gives large memory back.
    void reset();
    int size() const { return m_size; }
    /// All bytes since the last reset; valid until the next call of another operation.
    const std::string &toString();

private:
    std::string joined;
    std::list<std::string> buffer; // the chunks behind `joined`
    int m_size = 0;
};
