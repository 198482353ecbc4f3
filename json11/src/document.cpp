#include "document.h"

namespace json11 {
inline namespace standin {

const Json *Json::Document::find(std::size_t first, std::size_t count, const std::string &key) const {
    constexpr std::size_t FEW = 16; // so few members are searched faster than a map is made
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

const Json::object &Json::Document::mapOf(std::size_t first, std::size_t count) const {
    if (count == 0)
        return internal::empty<object>();
    const std::lock_guard lock(mutex);
    const auto [made, isNew] = maps.try_emplace(first);
    if (isNew)
        for (std::size_t i = first; i < first + count; ++i)
            made->second.insert_or_assign(std::string(members[i].key), lent(members[i].value));
    return made->second;
}

Json Json::Document::of(std::string value) {
    const auto made = std::make_shared<Document>();
    made->strings.push_back(std::move(value));
    return Json(STRING, 0, 0, made);
}

Json Json::Document::of(array values) {
    const auto made = std::make_shared<Document>();
    made->arrays.push_back(std::move(values));
    return Json(ARRAY, 0, 0, made);
}

Json Json::Document::of(object values) {
    const auto made = std::make_shared<Document>();
    const object &map = made->maps[0] = std::move(values);
    for (const auto &[key, value] : map)
        made->members.push_back({key, value});
    return Json(OBJECT, 0, map.size(), made);
}

Json Json::Document::lent(const Json &value) {
    Json copy;
    copy.kind = value.kind;
    copy.index = value.index;
    copy.number = value.number;
    copy.document = std::shared_ptr<const Document>(std::shared_ptr<void>(), value.document.get());
    return copy;
}

} // namespace standin
} // namespace json11
