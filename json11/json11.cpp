#include "json11.hpp"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>
#include <string_view>
#include <tuple>

namespace json11 {
namespace {

constexpr std::size_t MAX_DEPTH = 200;

template <class T>
const T &empty() {
    static const T value{};
    return value;
}

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
            out += three[2] == '\xa8' ? "\\u2028" : "\\u2029"; // line ends to JavaScript, though not to JSON
            i += 2;
        } else {
            out += c;
        }
    }
    out += '"';
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

/// `text` is a number by JSON's grammar. Nothing here asks for the process's locale.
Json toNumber(const char *text, std::size_t length) {
    const char *end = text + length;
    const bool whole = std::string_view(text, length).find_first_of(".eE") == std::string_view::npos;
    if (whole && length <= std::numeric_limits<int>::digits10) {
        int value = 0;
        std::from_chars(text, end, value);
        return value;
    }
    double value = 0;
    if (std::from_chars(text, end, value).ec == std::errc::result_out_of_range) {
        static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
        value = strtod_l(std::string(text, length).c_str(), nullptr, classic); // tells zero from infinity
    }
    return value;
}

/// Builds the value from the reader's events; an event that returns false ends the reading.
class Builder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Builder> {
public:
    bool Null() { return add(nullptr); }
    bool Bool(bool value) { return add(value); }
    bool RawNumber(const char *text, rapidjson::SizeType length, bool) { return add(toNumber(text, length)); }
    bool String(const char *text, rapidjson::SizeType length, bool) { return add(std::string(text, length)); }
    bool StartObject() { return start(true); }
    bool StartArray() { return start(false); }
    bool Key(const char *text, rapidjson::SizeType length, bool) {
        open.back().key.assign(text, length);
        return true;
    }
    bool EndObject(rapidjson::SizeType) { return finish(std::move(open.back().members)); }
    bool EndArray(rapidjson::SizeType) { return finish(std::move(open.back().items)); }

    Json root;

private:
    struct Container {
        bool isObject = false;
        Json::array items;
        Json::object members;
        std::string key;
    };
    std::vector<Container> open;

    bool start(bool isObject) {
        open.emplace_back().isObject = isObject;
        return open.size() - 1 <= MAX_DEPTH;
    }
    template <class T>
    bool finish(T content) {
        open.pop_back();
        return add(std::move(content));
    }
    bool add(Json value) {
        if (open.empty())
            root = std::move(value);
        else if (open.back().isObject)
            open.back().members.insert_or_assign(std::move(open.back().key), std::move(value));
        else
            open.back().items.push_back(std::move(value));
        return open.size() <= MAX_DEPTH;
    }
};

/// By JSON's grammar.
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

/// The text with every number written anew: the reader refuses some by their length or exponent that are in
/// range after all. A number beyond the range stays.
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
        const double value = isNumber(token) ? toNumber(token.data(), token.size()).number_value() : INFINITY;
        if (std::isfinite(value)) {
            appendNumber(out, value);
            out += value == 0 ? ".0" : ""; // or its sign would be lost
        } else {
            out += token;
        }
        i = end;
    }
    return out;
}

template <unsigned FLAGS>
rapidjson::ParseResult read(const std::string &in, Builder &builder) {
    rapidjson::StringStream stream(in.c_str());
    return rapidjson::Reader().Parse<FLAGS | rapidjson::kParseNumbersAsStringsFlag>(stream, builder);
}

} // namespace

Json::Json(std::string value)
    : content(std::make_shared<const std::string>(std::move(value))) {}
Json::Json(const char *value)
    : Json(std::string(value)) {}
Json::Json(array values)
    : content(std::make_shared<const array>(std::move(values))) {}
Json::Json(object values)
    : content(std::make_shared<const object>(std::move(values))) {}

Json::Type Json::type() const {
    constexpr Type types[] = {NUL, NUMBER, NUMBER, BOOL, STRING, ARRAY, OBJECT};
    return types[content.index()];
}

double Json::number_value() const {
    const int *whole = std::get_if<int>(&content);
    const double *value = std::get_if<double>(&content);
    return whole ? *whole : value ? *value : 0;
}

int Json::int_value() const {
    using Limits = std::numeric_limits<int>;
    if (const int *whole = std::get_if<int>(&content))
        return *whole;
    const double value = number_value();
    if (std::isnan(value))
        return 0;
    return value >= Limits::max()   ? Limits::max()
           : value <= Limits::min() ? Limits::min()
                                    : static_cast<int>(value);
}

bool Json::bool_value() const {
    const bool *value = std::get_if<bool>(&content);
    return value && *value;
}

const std::string &Json::string_value() const {
    return is_string() ? *std::get<std::shared_ptr<const std::string>>(content) : empty<std::string>();
}

const Json::array &Json::array_items() const {
    return is_array() ? *std::get<std::shared_ptr<const array>>(content) : empty<array>();
}

const Json::object &Json::object_items() const {
    return is_object() ? *std::get<std::shared_ptr<const object>>(content) : empty<object>();
}

const Json &Json::operator[](std::size_t i) const {
    const array &items = array_items();
    return i < items.size() ? items[i] : empty<Json>();
}

const Json &Json::operator[](const std::string &key) const {
    const object &members = object_items();
    const auto found = members.find(key);
    return found != members.end() ? found->second : empty<Json>();
}

void Json::dump(std::string &out) const {
    const char *separator = "";
    switch (type()) {
    case NUL:
        out += "null";
        break;
    case NUMBER:
        appendNumber(out, number_value());
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

Json Json::parse(const std::string &in, std::string &err, JsonParse strategy) {
    if (const auto zero = in.find('\0'); zero != std::string::npos) { // to the reader the end of the text
        err = "zero byte at offset " + std::to_string(zero);
        return nullptr;
    }
    Builder builder;
    const auto readAll = [&](const std::string &text) {
        builder = Builder();
        return strategy == JsonParse::COMMENTS ? read<rapidjson::kParseCommentsFlag>(text, builder)
                                               : read<rapidjson::kParseNoFlags>(text, builder);
    };
    rapidjson::ParseResult result = readAll(in);
    if (result.Code() == rapidjson::kParseErrorNumberTooBig)
        result = readAll(withPlainNumbers(in));
    if (result.IsError()) {
        err = result.Code() == rapidjson::kParseErrorTermination ? "nested too deep"
                                                                 : rapidjson::GetParseError_En(result.Code());
        err += " at offset " + std::to_string(result.Offset());
        return nullptr;
    }
    return std::move(builder.root);
}

Json Json::parse(const char *in, std::string &err, JsonParse strategy) {
    if (!in) {
        err = "null input";
        return nullptr;
    }
    return parse(std::string(in), err, strategy);
}

// A getter of another type than the values' own gives equal results, so that only their own one decides.
bool Json::operator==(const Json &other) const {
    return type() == other.type() && number_value() == other.number_value() &&
           bool_value() == other.bool_value() && string_value() == other.string_value() &&
           array_items() == other.array_items() && object_items() == other.object_items();
}

bool Json::operator<(const Json &other) const {
    const auto key = [](const Json &json) {
        return std::tuple<Type, double, bool, const std::string &, const array &, const object &>(
            json.type(), json.number_value(), json.bool_value(), json.string_value(), json.array_items(),
            json.object_items());
    };
    return key(*this) < key(other);
}

} // namespace json11
