#include "json-brace-counter.h"

std::vector<std::pair<int, int>> JsonBraceCounter::write(const buffer_t &bytes) {
    std::vector<std::pair<int, int>> result;
    for (const char c : bytes) {
        if (c == '"') {
            currentQuote = !currentQuote;
        } else if (c == '{' && !currentQuote) {
            if (currentBraceCount == 0)
                start = count;
            ++currentBraceCount;
        } else if (c == '}' && !currentQuote && currentBraceCount != 0) {
            --currentBraceCount;
            if (currentBraceCount == 0) {
                result.emplace_back(start, count);
                start = -1;
            }
        }
        ++count;
    }
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
