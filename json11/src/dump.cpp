#include "json11.hpp"
#include "numbers.h"

#include <string_view>

namespace json11 {
inline namespace standin {
namespace {

void appendEscaped(std::string &out, const std::string &text) {
    const std::string_view view(text);
    out += '"';
    for (std::size_t i = 0; i < view.size(); ++i) {
        const char c = view[i];
        const std::string_view three = view.substr(i, 3);
        constexpr std::string_view plain = "\"\\\b\f\n\r\t", letters = "\"\\bfnrt";
        constexpr std::string_view hex = "0123456789abcdef";
        if (const auto at = plain.find(c); at != plain.npos) {
            out += '\\';
            out += letters[at];
        } else if (static_cast<unsigned char>(c) < 0x20) {
            out += "\\u00";
            out += hex[static_cast<unsigned char>(c) >> 4];
            out += hex[static_cast<unsigned char>(c) & 0xf];
        } else if (three == "\xe2\x80\xa8" || three == "\xe2\x80\xa9") {
            out += three[2] == '\xa8' ? "\\u2028" : "\\u2029"; // line ends in JavaScript
            i += 2;
        } else {
            out += c;
        }
    }
    out += '"';
}

} // namespace

void Json::dump(std::string &out) const {
    const char *separator = "";
    switch (type()) {
    case NUL:
        out += "null";
        break;
    case NUMBER:
        internal::appendNumber(out, number_value());
        break;
    case BOOL:
        out += bool_value() ? "true" : "false";
        break;
    case STRING:
        appendEscaped(out, string_value());
        break;
    case ARRAY:
        out += '[';
        for (const Json &item : array_items()) {
            out += std::exchange(separator, ", ");
            item.dump(out);
        }
        out += ']';
        break;
    case OBJECT:
        out += '{';
        for (const auto &[key, value] : object_items()) {
            out += std::exchange(separator, ", ");
            appendEscaped(out, key);
            out += ": ";
            value.dump(out);
        }
        out += '}';
        break;
    }
}

std::string Json::dump() const {
    std::string out;
    dump(out);
    return out;
}

} // namespace standin
} // namespace json11
