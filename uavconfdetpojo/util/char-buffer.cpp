#include "char-buffer.h"

#include <cstddef>

void CharBuffer::reset() {
    constexpr std::size_t MUCH = 1 << 16; // memory for a few scans is kept for the next ones
    if (joined.capacity() > MUCH)
        joined = std::string();
    joined.clear();
}
