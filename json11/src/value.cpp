#include "document.h"

#include <cmath>
#include <limits>
#include <tuple>

namespace json11 {
inline namespace standin {

Json::Json(std::string value)
    : Json(Document::of(std::move(value))) {}
Json::Json(const char *value)
    : Json(std::string(value)) {}
Json::Json(array values)
    : Json(Document::of(std::move(values))) {}
Json::Json(object values)
    : Json(Document::of(std::move(values))) {}

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
    return is_string() ? document->strings[index] : internal::empty<std::string>();
}

const Json::array &Json::array_items() const {
    return is_array() ? document->arrays[index] : internal::empty<array>();
}

const Json::object &Json::object_items() const {
    return is_object() ? document->mapOf(index, static_cast<std::size_t>(number)) : internal::empty<object>();
}

const Json &Json::operator[](std::size_t i) const {
    const array &items = array_items();
    return i < items.size() ? items[i] : internal::empty<Json>();
}

const Json &Json::operator[](const std::string &key) const {
    const Json *found = is_object() ? document->find(index, static_cast<std::size_t>(number), key) : nullptr;
    return found ? *found : internal::empty<Json>();
}

// Compares all getters. A getter of another type gives the same default for both values, so only the values'
// own type decides.
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

} // namespace standin
} // namespace json11
