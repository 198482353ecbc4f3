#pragma once

#include "char-buffer.h"

#include <utility>
#include <vector>

inline namespace kelvane {

/// Finds the JSON objects in a byte stream by counting braces outside of strings. Positions count the bytes
/// since the last reset. On purpose: a backslash has no meaning, because the devices send no escaped quotes.
class JsonBraceCounter {
public:
    /// Reads the next bytes. Returns the objects that end in them, in order, as the positions of their first
    /// and last brace.
    std::vector<std::pair<int, int>> write(const buffer_t &bytes);
    /// Call it after the first `n` bytes were removed. No caller today.
    void removeStartBytes(int n);
    /// Call it after all bytes to the end of the last of these objects were removed. No caller today.
    void removeByResult(const std::vector<std::pair<int, int>> &result);
    void reset();

private:
    int currentBraceCount = 0;
    bool currentQuote = false;
    int start = -1; // of the open object; -1: none is open
    int count = 0;
};

} // namespace kelvane
