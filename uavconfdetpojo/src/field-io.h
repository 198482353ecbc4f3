#pragma once

#include "classic-locale.h"
#include "enum-class.h"

#include <algorithm>
#include <any>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iostream>
#include <json11.hpp>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

inline namespace kelvane {

/// Reads and writes a value of type T. The rule of each type is here and nowhere else.
///
/// `read` returns nothing if the JSON value is no T. A field then stays absent; an element of a list is left
/// out. `write` appends the value's text.
template <typename T, typename = void>
struct FieldIo;

template <>
struct FieldIo<std::string> {
    static std::optional<std::string> read(const json11::Json &json) {
        return json.is_string() ? std::optional(json.string_value()) : std::nullopt;
    }
    // On purpose: the bytes are written as they are, because the device knows no escapes.
    static void write(std::string &out, const std::string &value) { out += '"' + value + '"'; }
};

template <>
struct FieldIo<bool> {
    static std::optional<bool> read(const json11::Json &json) {
        return json.is_bool() ? std::optional(json.bool_value()) : std::nullopt;
    }
    static void write(std::string &out, bool value) { out += value ? "true" : "false"; }
};

template <typename T>
struct FieldIo<T, std::enable_if_t<std::is_floating_point_v<T>>> {
    // Some builds of the JSON library read a number beyond a double's range as infinite. No field accepts
    // that.
    static std::optional<T> read(const json11::Json &json) {
        const bool usable = json.is_number() && std::isfinite(json.number_value());
        return usable ? std::optional(static_cast<T>(json.number_value())) : std::nullopt;
    }
    // Six decimals, never an exponent, and a decimal point in every locale.
    static void write(std::string &out, T value) {
        constexpr int decimals = 6;
        char digits[std::numeric_limits<double>::max_exponent10 + decimals + 8];
        const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<double>(value),
                                       std::chars_format::fixed, decimals);
        out.append(digits, end.ptr);
    }
};

/// A fraction is rounded towards zero. A number beyond the type's range gives the nearest end of the range.
/// On purpose: numbers of 64 bits are also read as a double, so above 2^53 the lowest digits are lost.
template <typename T>
struct FieldIo<T, std::enable_if_t<std::is_same_v<T, int> || std::is_same_v<T, std::int64_t>>> {
    static std::optional<T> read(const json11::Json &json) {
        const auto number = FieldIo<double>::read(json);
        return number ? std::optional(cut(*number)) : std::nullopt;
    }
    static void write(std::string &out, T value) { out += std::to_string(value); }

private:
    static T cut(double number) {
        constexpr double beyond =
            -static_cast<double>(std::numeric_limits<T>::min()); // a power of two: exact
        if (number >= beyond)
            return std::numeric_limits<T>::max();
        return number < -beyond ? std::numeric_limits<T>::min() : static_cast<T>(number);
    }
};

template <typename Enum>
struct FieldIo<Enum, std::enable_if_t<std::is_enum_v<Enum>>> {
    using Class = typename EnumClassOf<Enum>::type;

    static std::optional<Enum> read(const json11::Json &json) {
        return json.is_string() ? Class::getEnumValue(json.string_value()) : std::nullopt;
    }
    static void write(std::string &out, Enum value) { out += '"' + Class(value).name() + '"'; }
};

/// A nested value. On purpose: a null pointer writes nothing at all, neither as an element of a list nor
/// behind its key.
template <typename Value>
struct FieldIo<std::shared_ptr<Value>> {
    static std::optional<std::shared_ptr<Value>> read(const json11::Json &json) {
        return json.is_object() ? std::optional(Value::fromJson(json)) : std::nullopt;
    }
    static void write(std::string &out, const std::shared_ptr<Value> &value) {
        if (value)
            out += value->parseMsg();
    }
};

/// On purpose: a list whose JSON value is no array is present and empty. A map would be absent.
template <typename Element>
struct FieldIo<std::vector<Element>> {
    static std::optional<std::vector<Element>> read(const json11::Json &json) {
        std::vector<Element> list;
        list.reserve(json.array_items().size());
        for (const json11::Json &item : json.array_items())
            if (auto element = FieldIo<Element>::read(item))
                list.push_back(std::move(*element));
        return list;
    }
    static void write(std::string &out, const std::vector<Element> &list) {
        out += "[\n";
        const char *separator = "";
        for (const Element &element : list) {
            out += separator;
            FieldIo<Element>::write(out, element);
            separator = ",\n";
        }
        out += "\n]";
    }
};

/// Appends the entries of a map in the order of its keys. On purpose: a map has another style than an object.
/// There are line breaks only between the entries, and no blanks around the colon.
template <typename Map, typename WriteKey, typename WriteValue>
void writeMap(std::string &out, const Map &map, WriteKey writeKey, WriteValue writeValue) {
    out += "{";
    const char *separator = "";
    for (const auto &[key, value] : map) {
        out += separator;
        writeKey(out, key);
        out += ":";
        writeValue(out, value);
        separator = ",\n";
    }
    out += "}";
}

template <typename Enum, typename Value>
struct FieldIo<std::map<Enum, Value>> {
    static std::optional<std::map<Enum, Value>> read(const json11::Json &json) {
        if (!json.is_object())
            return std::nullopt;
        std::map<Enum, Value> map;
        for (const auto &[name, entry] : json.object_items()) {
            const auto key = EnumClassOf<Enum>::type::getEnumValue(name);
            const auto value = key ? FieldIo<Value>::read(entry) : std::nullopt;
            if (value)
                map.emplace(*key, *value);
        }
        return map;
    }
    static void write(std::string &out, const std::map<Enum, Value> &map) {
        writeMap(out, map, FieldIo<Enum>::write, FieldIo<Value>::write);
    }
};

/// Parameter values: names and JSON values that only the device knows. They are kept as values of the JSON
/// library.
template <>
struct FieldIo<std::map<std::string, std::any>> {
    using Map = std::map<std::string, std::any>;

    static std::optional<Map> read(const json11::Json &json) {
        if (!json.is_object())
            return std::nullopt;
        return Map(json.object_items().begin(), json.object_items().end());
    }
    static void write(std::string &out, const Map &map) {
        writeMap(
            out, map, FieldIo<std::string>::write,
            [](std::string &text, const std::any &value) {
                if (const auto *json = std::any_cast<json11::Json>(&value)) {
                    const ClassicLocale pinned;
                    text += json->dump();
                } else {
                    std::cout << "bad any cast" << std::endl;
                }
            });
    }
};

} // namespace kelvane
