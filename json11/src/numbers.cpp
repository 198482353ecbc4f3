#include "numbers.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <locale.h>
#include <string_view>

namespace json11 {
inline namespace standin {
namespace internal {
namespace {

/// Whether the text is a number in JSON's grammar.
bool isNumber(std::string_view text) {
    const auto skipDigits = [&text] {
        const auto end = std::min(text.find_first_not_of("0123456789"), text.size());
        text.remove_prefix(end);
        return end > 0;
    };
    const auto skipOne = [&text](const char *of) {
        const bool found = !text.empty() && std::string_view(of).find(text.front()) != std::string_view::npos;
        text.remove_prefix(found ? 1 : 0);
        return found;
    };
    skipOne("-");
    if (!skipOne("0") && !skipDigits())
        return false;
    if (skipOne(".") && !skipDigits())
        return false;
    if (skipOne("eE")) {
        skipOne("+-");
        if (!skipDigits())
            return false;
    }
    return text.empty();
}

} // namespace

double toNumber(const char *text, std::size_t length) {
    const char *end = text + length;
    if (length <= std::numeric_limits<int>::digits10) {
        int value = 0;
        if (std::from_chars(text, end, value).ptr == end)
            return value;
    }
    double value = 0;
    if (std::from_chars(text, end, value).ec == std::errc::result_out_of_range) {
        // This one gives zero or infinity.
        static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
        value = strtod_l(std::string(text, length).c_str(), nullptr, classic);
    }
    return value;
}

void appendNumber(std::string &out, double value) {
    if (!std::isfinite(value)) {
        out += "null";
        return;
    }
    char text[32];
    constexpr int precision = std::numeric_limits<double>::max_digits10;
    out.append(text, std::to_chars(text, std::end(text), value, std::chars_format::general, precision).ptr);
}

std::string withPlainNumbers(const std::string &in) {
    std::string out;
    for (std::size_t i = 0; i < in.size();) {
        std::size_t end = i + 1;
        if (in[i] == '"') {
            while (end < in.size() && in[end] != '"')
                end += in[end] == '\\' ? 2 : 1;
            end = std::min(end + 1, in.size());
        } else if (in[i] == '-' || std::isdigit(static_cast<unsigned char>(in[i]))) {
            end = std::min(in.find_first_not_of("0123456789+-.eE", i), in.size());
        }
        const std::string_view token = std::string_view(in).substr(i, end - i);
        const double value = isNumber(token) ? toNumber(token.data(), token.size()) : INFINITY;
        if (std::isfinite(value)) {
            appendNumber(out, value);
            out += value == 0 ? ".0" : ""; // keeps the sign of a zero
        } else {
            out += token;
        }
        i = end;
    }
    return out;
}

} // namespace internal
} // namespace standin
} // namespace json11
