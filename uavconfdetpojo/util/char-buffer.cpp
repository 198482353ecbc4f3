#include "char-buffer.h"

#include <cstddef>

void CharBuffer::reset() {
    constexpr std::size_t MUCH = 1 << 16; // what a few scans take is kept for the next ones
    if (joined.capacity() > MUCH)
        joined = std::string();
    joined.clear();
}
