#pragma once

#include "enum-class.h"
#include "utils.h"

#include <any>
#include <charconv>
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

/// How a field of type T is read and written; the rule of each type stands here and nowhere else.
///
/// `read` is called for a key that is there and returns nothing where the field is to stay absent. `write`
/// appends the value's text.
template <typename T, typename = void>
struct FieldIo;

using JsonItems = json11::Json::object;

template <>
struct FieldIo<std::string> {
    static std::optional<std::string> read(const std::string &key, const JsonItems &items) {
        return Utils::getStringField(key, items);
    }
    // The bytes go out as they are: the device knows no escapes.
    static void write(std::string &out, const std::string &value) { out += '"' + value + '"'; }
};

template <>
struct FieldIo<bool> {
    static std::optional<bool> read(const std::string &key, const JsonItems &items) {
        return Utils::getBoolField(key, items);
    }
    static void write(std::string &out, bool value) { out += value ? "true" : "false"; }
};

template <>
struct FieldIo<int> {
    static std::optional<int> read(const std::string &key, const JsonItems &items) {
        return Utils::getIntField(key, items);
    }
    static void write(std::string &out, int value) { out += std::to_string(value); }
};

// Read as a double so that it is not squeezed through an int: beyond 2^53 the low digits are lost.
template <>
struct FieldIo<std::int64_t> {
    static std::optional<std::int64_t> read(const std::string &key, const JsonItems &items) {
        const auto number = Utils::getDoubleField(key, items);
        if (!number)
            return std::nullopt;
        constexpr double limit = 9223372036854775808.0; // 2^63, the first double above the range
        if (*number >= limit)
            return std::numeric_limits<std::int64_t>::max();
        if (*number < -limit)
            return std::numeric_limits<std::int64_t>::min();
        return static_cast<std::int64_t>(*number);
    }
    static void write(std::string &out, std::int64_t value) { out += std::to_string(value); }
};

template <typename T>
struct FieldIo<T, std::enable_if_t<std::is_floating_point_v<T>>> {
    static std::optional<T> read(const std::string &key, const JsonItems &items) {
        const auto number = Utils::getDoubleField(key, items);
        return number ? std::optional<T>(static_cast<T>(*number)) : std::nullopt;
    }
    // Six decimals and never an exponent, with a point whatever the user's locale says.
    static void write(std::string &out, T value) {
        constexpr int decimals = 6;
        char digits[std::numeric_limits<double>::max_exponent10 + decimals + 8];
        const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<double>(value),
                                       std::chars_format::fixed, decimals);
        out.append(digits, end.ptr);
    }
};

template <typename Enum>
struct FieldIo<Enum, std::enable_if_t<std::is_enum_v<Enum>>> {
    using Class = typename EnumClassOf<Enum>::type;

    static std::optional<Enum> read(const std::string &key, const JsonItems &items) {
        const auto name = Utils::getStringField(key, items);
        return name ? Class::getEnumValue(*name) : std::nullopt;
    }
    static void write(std::string &out, Enum value) { out += '"' + Class(value).name() + '"'; }
};

/// A nested value. A null pointer writes nothing at all.
template <typename Value>
struct FieldIo<std::shared_ptr<Value>> {
    static std::optional<std::shared_ptr<Value>> read(const std::string &key, const JsonItems &items) {
        const json11::Json &json = items.at(key);
        return json.is_object() ? std::optional(Value::fromJson(json)) : std::nullopt;
    }
    static void write(std::string &out, const std::shared_ptr<Value> &value) {
        if (value)
            out += value->parseMsg();
    }
};

/// Reads the elements of a list; each overload drops what is no element of its kind.
struct ListElements {
    static void read(std::vector<int> &list, const std::string &key, const JsonItems &items) {
        list = Utils::getIntVec(key, items);
    }
    static void read(std::vector<float> &list, const std::string &key, const JsonItems &items) {
        list = Utils::getFloatVec(key, items);
    }
    template <typename Enum>
    static void read(std::vector<Enum> &list, const std::string &key, const JsonItems &items) {
        for (const json11::Json &element : items.at(key).array_items()) {
            if (!element.is_string())
                continue;
            if (const auto known = EnumClassOf<Enum>::type::getEnumValue(element.string_value()))
                list.push_back(*known);
        }
    }
    template <typename Value>
    static void read(std::vector<std::shared_ptr<Value>> &list, const std::string &key,
                     const JsonItems &items) {
        for (const json11::Json &element : items.at(key).array_items())
            if (element.is_object())
                list.push_back(Value::fromJson(element));
    }
};

/// A list that is there but is no array is present and empty.
template <typename Element>
struct FieldIo<std::vector<Element>> {
    static std::optional<std::vector<Element>> read(const std::string &key, const JsonItems &items) {
        std::vector<Element> list;
        ListElements::read(list, key, items);
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

/// Appends the entries of a map in the order of its keys, in the style of maps: no line breaks but between
/// the entries, no blanks around the colon.
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

/// Unlike a list, a map that is there but is no object stays absent.
template <typename Enum, typename Value>
struct FieldIo<std::map<Enum, Value>> {
    static std::optional<std::map<Enum, Value>> read(const std::string &key, const JsonItems &items) {
        const json11::Json &json = items.at(key);
        if (!json.is_object())
            return std::nullopt;
        std::map<Enum, Value> map;
        for (const auto &[name, entry] : json.object_items()) {
            const auto known = EnumClassOf<Enum>::type::getEnumValue(name);
            const auto value = known ? FieldIo<Value>::read(name, json.object_items()) : std::nullopt;
            if (value)
                map.emplace(*known, *value);
        }
        return map;
    }
    static void write(std::string &out, const std::map<Enum, Value> &map) {
        writeMap(out, map, FieldIo<Enum>::write, FieldIo<Value>::write);
    }
};

/// Parameter values: names and JSON values that only the device knows, kept as the JSON library's values.
template <>
struct FieldIo<std::map<std::string, std::any>> {
    using Map = std::map<std::string, std::any>;

    static std::optional<Map> read(const std::string &key, const JsonItems &items) {
        const json11::Json &json = items.at(key);
        if (!json.is_object())
            return std::nullopt;
        return Map(json.object_items().begin(), json.object_items().end());
    }
    static void write(std::string &out, const Map &map) {
        writeMap(
            out, map, FieldIo<std::string>::write,
            [](std::string &text, const std::any &value) {
                if (const auto *json = std::any_cast<json11::Json>(&value))
                    text += json->dump();
                else
                    std::cout << "bad any cast" << std::endl;
            });
    }
};
