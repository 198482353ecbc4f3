#include "char-buffer.h"

#include <algorithm>
#include <cstddef>
#include <utility>

void CharBuffer::write(std::string bytes) {
    m_size += static_cast<int>(bytes.size());
    buffer.push_back(std::move(bytes));
}

void CharBuffer::reset() {
    constexpr std::size_t MUCH = 1 << 16; // what a few scans take is kept for the next ones
    if (joined.capacity() > MUCH)
        joined = std::string();
    joined.clear();
    buffer.clear();
    m_size = 0;
}

const std::string &CharBuffer::toString() {
    const auto needed = static_cast<std::size_t>(m_size);
    if (needed > joined.capacity()) // at least doubled, or each call would move everything anew
        joined.reserve(std::max(needed, 2 * joined.capacity()));
    for (const std::string &chunk : buffer)
        joined += chunk;
    buffer.clear();
    return joined;
}
