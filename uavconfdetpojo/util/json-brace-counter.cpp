#include "json-brace-counter.h"

#include <array>

namespace {

/// Whether a byte has a meaning here. Most have none, and each received byte is checked.
constexpr std::array<bool, 256> counts = [] {
    std::array<bool, 256> table{};
    for (const char c : {'"', '{', '}'})
        table[static_cast<unsigned char>(c)] = true;
    return table;
}();

} // namespace

std::vector<std::pair<int, int>> JsonBraceCounter::write(const buffer_t &bytes) {
    std::vector<std::pair<int, int>> result;
    int position = count;
    int depth = currentBraceCount; // local copies, because the compiler keeps only these in registers
    bool quoted = currentQuote;
    for (const char c : bytes) {
        if (counts[static_cast<unsigned char>(c)]) {
            if (c == '"') {
                quoted = !quoted;
            } else if (c == '{' && !quoted) {
                if (depth++ == 0)
                    start = position;
            } else if (c == '}' && !quoted && depth != 0) {
                if (--depth == 0)
                    result.emplace_back(std::exchange(start, -1), position);
            }
        }
        ++position;
    }
    count = position;
    currentBraceCount = depth;
    currentQuote = quoted;
    return result;
}

void JsonBraceCounter::removeStartBytes(int n) {
    if (start != -1)
        start -= n;
    count -= n;
}

void JsonBraceCounter::removeByResult(const std::vector<std::pair<int, int>> &result) {
    if (!result.empty())
        removeStartBytes(result.back().second + 1);
}

void JsonBraceCounter::reset() {
    *this = JsonBraceCounter();
}
