#include "utils.h"

#include <cmath>

using json11::Json;

namespace {

// A number beyond a double's range is read as infinite by some builds of the JSON library; no field has a use
// for it.
bool isUsable(const Json &json) {
    return !json.is_number() || std::isfinite(json.number_value());
}

const Json *find(const std::string &key, const Json::object &items, bool (Json::*isWanted)() const) {
    const auto item = items.find(key);
    const bool found = item != items.end() && (item->second.*isWanted)() && isUsable(item->second);
    return found ? &item->second : nullptr;
}

template <typename Number, typename Convert>
std::vector<Number> numbers(const Json &json, Convert convert) {
    std::vector<Number> list;
    for (const Json &element : json.array_items())
        if (element.is_number() && isUsable(element))
            list.push_back(convert(element));
    return list;
}

} // namespace

std::optional<Json> Utils::getObject(const std::string &text) {
    std::string error;
    Json json = Json::parse(text, error);
    return json.is_object() ? std::optional(std::move(json)) : std::nullopt;
}

std::optional<std::string> Utils::getStringField(const std::string &key, const Json::object &items) {
    const Json *json = find(key, items, &Json::is_string);
    return json ? std::optional(json->string_value()) : std::nullopt;
}

std::optional<int> Utils::getIntField(const std::string &key, const Json::object &items) {
    const Json *json = find(key, items, &Json::is_number);
    return json ? std::optional(json->int_value()) : std::nullopt;
}

std::optional<double> Utils::getDoubleField(const std::string &key, const Json::object &items) {
    const Json *json = find(key, items, &Json::is_number);
    return json ? std::optional(json->number_value()) : std::nullopt;
}

std::optional<bool> Utils::getBoolField(const std::string &key, const Json::object &items) {
    const Json *json = find(key, items, &Json::is_bool);
    return json ? std::optional(json->bool_value()) : std::nullopt;
}

std::vector<int> Utils::getIntVec(const std::string &key, const Json::object &items) {
    return numbers<int>(
        items.at(key), [](const Json &json) { return json.int_value(); });
}

std::vector<float> Utils::getFloatVec(const std::string &key, const Json::object &items) {
    return numbers<float>(
        items.at(key), [](const Json &json) { return static_cast<float>(json.number_value()); });
}
