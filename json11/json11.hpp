#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace json11 {
inline namespace standin {

enum JsonParse { STANDARD, COMMENTS };

/// An immutable JSON value with the interface of json11. Copies share their content and may be read from
/// several threads. A getter of another type than the value's own gives that type's empty value.
///
/// Strings, arrays and objects are stored in a document. One document has all values of a parsed text; a
/// value that was made otherwise has its own. A copy of any part keeps the whole document alive.
class Json final {
public:
    enum Type { NUL, NUMBER, BOOL, STRING, ARRAY, OBJECT };
    using array = std::vector<Json>;
    using object = std::map<std::string, Json>;

    Json() noexcept = default;
    Json(std::nullptr_t) noexcept {}
    Json(double value)
        : kind(NUMBER)
        , number(value) {}
    Json(int value)
        : kind(NUMBER)
        , number(value) {}
    Json(bool value)
        : kind(BOOL)
        , number(value) {}
    Json(std::string value);
    Json(const char *value);
    Json(array values);
    Json(object values);
    Json(void *) = delete; // a pointer would otherwise become a bool
    Json(const Json &other);
    Json(Json &&other) noexcept = default;
    Json &operator=(const Json &other) { return *this = Json(other); }
    Json &operator=(Json &&other) noexcept = default;

    /// From a class with a `to_json()`.
    template <class T, class = decltype(&T::to_json)>
    Json(const T &t)
        : Json(t.to_json()) {}

    /// From any map whose keys make strings and whose values make JSON.
    template <class M, std::enable_if_t<
                           std::is_constructible_v<std::string, decltype(std::declval<M>().begin()->first)> &&
                               std::is_constructible_v<Json, decltype(std::declval<M>().begin()->second)>,
                           int> = 0>
    Json(const M &m)
        : Json(object(m.begin(), m.end())) {}

    /// From any sequence whose elements make JSON.
    template <class V,
              std::enable_if_t<std::is_constructible_v<Json, decltype(*std::declval<V>().begin())>, int> = 0>
    Json(const V &v)
        : Json(array(v.begin(), v.end())) {}

    Type type() const { return kind; }
    bool is_null() const { return type() == NUL; }
    bool is_number() const { return type() == NUMBER; }
    bool is_bool() const { return type() == BOOL; }
    bool is_string() const { return type() == STRING; }
    bool is_array() const { return type() == ARRAY; }
    bool is_object() const { return type() == OBJECT; }

    /// 0 for a value that is no number.
    double number_value() const;
    /// Rounded towards zero. A value beyond the range of int gives the nearest end of it; NaN gives 0.
    int int_value() const;
    bool bool_value() const;
    const std::string &string_value() const;
    const array &array_items() const;
    const object &object_items() const;
    /// Null if there is no such element.
    const Json &operator[](std::size_t i) const;
    const Json &operator[](const std::string &key) const;

    /// Writes the value: keys in byte order, a blank behind each colon and comma, numbers as "%.17g" with a
    /// decimal point in every locale, null for a number that is not finite.
    void dump(std::string &out) const;
    std::string dump() const;

    /// Parses one JSON value with nothing behind it, nested at most 200 deep. The bytes of strings are kept
    /// as they come. Of equal keys the last one counts. On failure the result is null and `err` has the
    /// reason; otherwise `err` is not changed.
    static Json parse(const std::string &in, std::string &err, JsonParse strategy = JsonParse::STANDARD);
    static Json parse(const char *in, std::string &err, JsonParse strategy = JsonParse::STANDARD);

    /// Numbers compare by value, whether they are held as int or double; other values by type, then by
    /// content.
    bool operator==(const Json &other) const;
    bool operator<(const Json &other) const;
    bool operator!=(const Json &other) const { return !(*this == other); }
    bool operator<=(const Json &other) const { return !(other < *this); }
    bool operator>(const Json &other) const { return other < *this; }
    bool operator>=(const Json &other) const { return !(*this < other); }

private:
    struct Document;
    friend class Builder;
    Json(Type type, std::size_t first, std::size_t count, std::shared_ptr<const Document> owner)
        : kind(type)
        , index(static_cast<unsigned>(first))
        , number(static_cast<double>(count))
        , document(std::move(owner)) {}

    Type kind = NUL;
    unsigned index = 0; // among the document's strings or arrays; of an object's first member
    double number = 0;  // or the bool, or the number of members
    // Null in the values inside the document itself; they would keep it alive for ever.
    std::shared_ptr<const Document> document;
};

} // namespace standin
} // namespace json11
