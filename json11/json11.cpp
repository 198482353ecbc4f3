#include "json11.hpp"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <locale.h>
#include <mutex>
#include <optional>
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
    if (length <= std::numeric_limits<int>::digits10) {
        int value = 0;
        if (std::from_chars(text, end, value).ptr == end)
            return value;
    }
    double value = 0;
    if (std::from_chars(text, end, value).ec == std::errc::result_out_of_range) {
        static const locale_t classic = newlocale(LC_ALL_MASK, "C", nullptr);
        value = strtod_l(std::string(text, length).c_str(), nullptr, classic); // tells zero from infinity
    }
    return value;
}

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

} // namespace

/// What values refer to by their index. Nothing changes once it is made, but for the maps.
struct Json::Document : std::enable_shared_from_this<Document> {
    struct Member {
        std::string_view key;
        Json value;
    };

    std::vector<std::string> strings;
    std::vector<array> arrays;
    std::vector<Member> members; // those of an object stand side by side, as they came
    std::string text;            // where the keys are

    /// Looks among an object's members. Null where there is none; of equal keys the last one counts.
    const Json *find(std::size_t first, std::size_t count, const std::string &key) const {
        constexpr std::size_t FEW = 16; // members that are looked through faster than a map is made
        if (count > FEW) {
            const auto &items = mapOf(first, count);
            const auto found = items.find(key);
            return found != items.end() ? &found->second : nullptr;
        }
        for (std::size_t i = first + count; i > first; --i)
            if (members[i - 1].key == key)
                return &members[i - 1].value;
        return nullptr;
    }

    /// Made when it is asked for: most objects are only searched.
    const object &mapOf(std::size_t first, std::size_t count) const {
        if (count == 0)
            return empty<object>();
        const std::lock_guard lock(mutex);
        const auto [made, isNew] = maps.try_emplace(first);
        if (isNew)
            for (std::size_t i = first; i < first + count; ++i)
                made->second.insert_or_assign(std::string(members[i].key), lent(members[i].value));
        return made->second;
    }

    static Json of(std::string value) {
        const auto made = std::make_shared<Document>();
        made->strings.push_back(std::move(value));
        return Json(STRING, 0, 0, made);
    }
    static Json of(array values) {
        const auto made = std::make_shared<Document>();
        made->arrays.push_back(std::move(values));
        return Json(ARRAY, 0, 0, made);
    }
    static Json of(object values) {
        const auto made = std::make_shared<Document>();
        const object &map = made->maps[0] = std::move(values);
        for (const auto &[key, value] : map)
            made->members.push_back({key, value});
        return Json(OBJECT, 0, map.size(), made);
    }

private:
    /// A value for the document itself.
    static Json lent(const Json &value) {
        Json copy;
        copy.kind = value.kind;
        copy.index = value.index;
        copy.number = value.number;
        copy.document = std::shared_ptr<const Document>(std::shared_ptr<void>(), value.document.get());
        return copy;
    }

    mutable std::mutex mutex; // guards the maps
    mutable std::map<std::size_t, object> maps;
};

/// Builds a document from the reader's events; an event that returns false ends the reading.
class Builder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Builder> {
public:
    bool Null() { return place(nullptr); }
    bool Bool(bool value) { return place(value); }
    bool RawNumber(const char *text, rapidjson::SizeType length, bool) {
        return place(toNumber(text, length));
    }
    bool String(const char *text, rapidjson::SizeType length, bool) {
        document->strings.emplace_back(text, length);
        return place(Json(Json::STRING, document->strings.size() - 1, 0, inside));
    }
    bool StartObject() { return start('{'); }
    bool StartArray() { return start('['); }
    bool Key(const char *text, rapidjson::SizeType length, bool) {
        pending.emplace_back().key = std::string_view(text, length);
        return true;
    }
    bool EndObject(rapidjson::SizeType count) {
        const auto first = pending.end() - count;
        auto &members = document->members;
        members.insert(members.end(), std::make_move_iterator(first), std::make_move_iterator(pending.end()));
        return finish(count, Json(Json::OBJECT, members.size() - count, count, inside));
    }
    bool EndArray(rapidjson::SizeType count) {
        auto &items = document->arrays.emplace_back();
        items.reserve(count);
        for (auto item = pending.end() - count; item != pending.end(); ++item)
            items.push_back(std::move(item->value));
        return finish(count, Json(Json::ARRAY, document->arrays.size() - 1, 0, inside));
    }

    /// The value of the text that was read.
    Json root() const { return pending.front().value; }

    /// Reads in place: the text is taken apart.
    template <unsigned FLAGS>
    rapidjson::ParseResult read(const std::string &text) {
        document->text = text;
        document->members.reserve(text.size() / 16); // about what the device's objects come to
        pending.reserve(16);
        rapidjson::InsituStringStream stream(document->text.data());
        return rapidjson::Reader()
            .Parse<FLAGS | rapidjson::kParseInsituFlag | rapidjson::kParseNumbersAsStringsFlag>(stream,
                                                                                                *this);
    }

private:
    const std::shared_ptr<Json::Document> document = std::make_shared<Json::Document>();
    const std::shared_ptr<const Json::Document> inside{std::shared_ptr<void>(), document.get()};
    /// Members and items of the containers that are open, outermost first; the last member of an object
    /// perhaps still without its value.
    std::vector<Json::Document::Member> pending;
    std::string open; // the containers: '{' or '['

    bool start(char container) {
        open.push_back(container);
        return open.size() - 1 <= MAX_DEPTH;
    }
    bool finish(std::size_t count, Json &&value) {
        pending.resize(pending.size() - count);
        open.pop_back();
        return place(std::move(value));
    }
    bool place(Json &&value) {
        if (open.empty() || open.back() == '[')
            pending.emplace_back();
        pending.back().value = std::move(value);
        return open.size() <= MAX_DEPTH;
    }
};

Json::Json(std::string value)
    : Json(Document::of(std::move(value))) {}
Json::Json(const char *value)
    : Json(std::string(value)) {}
Json::Json(array values)
    : Json(Document::of(std::move(values))) {}
Json::Json(object values)
    : Json(Document::of(std::move(values))) {}
Json::Json(Type type, std::size_t first, std::size_t count, std::shared_ptr<const Document> owner)
    : kind(type)
    , index(static_cast<unsigned>(first))
    , number(static_cast<double>(count))
    , document(std::move(owner)) {}

Json::Json(const Json &other)
    : kind(other.kind)
    , index(other.index)
    , number(other.number)
    , document(other.document && other.document.use_count() == 0 ? other.document->shared_from_this()
                                                                 : other.document) {}

double Json::number_value() const {
    return is_number() ? number : 0;
}

int Json::int_value() const {
    using Limits = std::numeric_limits<int>;
    const double value = number_value();
    if (std::isnan(value))
        return 0;
    return value >= Limits::max()   ? Limits::max()
           : value <= Limits::min() ? Limits::min()
                                    : static_cast<int>(value);
}

bool Json::bool_value() const {
    return is_bool() && number != 0;
}

const std::string &Json::string_value() const {
    return is_string() ? document->strings[index] : empty<std::string>();
}

const Json::array &Json::array_items() const {
    return is_array() ? document->arrays[index] : empty<array>();
}

const Json::object &Json::object_items() const {
    return is_object() ? document->mapOf(index, static_cast<std::size_t>(number)) : empty<object>();
}

const Json &Json::operator[](std::size_t i) const {
    const array &items = array_items();
    return i < items.size() ? items[i] : empty<Json>();
}

const Json &Json::operator[](const std::string &key) const {
    const Json *found = is_object() ? document->find(index, static_cast<std::size_t>(number), key) : nullptr;
    return found ? *found : empty<Json>();
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
    std::optional<Builder> builder;
    const auto readAll = [&](const std::string &text) {
        builder.emplace();
        return strategy == JsonParse::COMMENTS ? builder->read<rapidjson::kParseCommentsFlag>(text)
                                               : builder->read<rapidjson::kParseNoFlags>(text);
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
    return builder->root();
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
