#pragma once

#include "json11.hpp"

#include <mutex>
#include <string_view>

namespace json11 {
inline namespace standin {
namespace internal {

template <class T>
const T &empty() {
    static const T value{};
    return value;
}

} // namespace internal

/// The content of values, which refer to it by index. After it is made, only the maps change.
struct Json::Document : std::enable_shared_from_this<Document> {
    struct Member {
        std::string_view key;
        Json value;
    };

    std::vector<std::string> strings;
    std::vector<array> arrays;
    std::vector<Member> members; // those of an object are side by side, in the text's order
    std::string text;            // where the keys are

    /// Searches an object's members. Null if there is none with this key. Of equal keys the last one counts.
    const Json *find(std::size_t first, std::size_t count, const std::string &key) const;

    /// The map is made at the first call, because most objects are only searched.
    const object &mapOf(std::size_t first, std::size_t count) const;

    /// A value with its own document.
    static Json of(std::string value);
    static Json of(array values);
    static Json of(object values);

private:
    /// The value as it is stored in the document itself.
    static Json lent(const Json &value);

    mutable std::mutex mutex; // guards the maps
    mutable std::map<std::size_t, object> maps;
};

} // namespace standin
} // namespace json11
