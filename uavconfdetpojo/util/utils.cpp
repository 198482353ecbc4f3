#include "utils.h"

#include "classic-locale.h"
#include "field-io.h"

using json11::Json;

namespace {

template <typename T>
std::optional<T> field(const std::string &key, const Json::object &items) {
    const auto item = items.find(key);
    return item != items.end() ? FieldIo<T>::read(item->second) : std::nullopt;
}

} // namespace

std::optional<Json> Utils::getObject(const std::string &text) {
    const ClassicLocale pinned;
    std::string error;
    Json json = Json::parse(text, error);
    return json.is_object() ? std::optional(std::move(json)) : std::nullopt;
}

std::optional<std::string> Utils::getStringField(const std::string &key, const Json::object &items) {
    return field<std::string>(key, items);
}

std::optional<int> Utils::getIntField(const std::string &key, const Json::object &items) {
    return field<int>(key, items);
}

std::optional<double> Utils::getDoubleField(const std::string &key, const Json::object &items) {
    return field<double>(key, items);
}

std::optional<bool> Utils::getBoolField(const std::string &key, const Json::object &items) {
    return field<bool>(key, items);
}

std::vector<int> Utils::getIntVec(const std::string &key, const Json::object &items) {
    return *FieldIo<std::vector<int>>::read(items.at(key));
}

std::vector<float> Utils::getFloatVec(const std::string &key, const Json::object &items) {
    return *FieldIo<std::vector<float>>::read(items.at(key));
}
