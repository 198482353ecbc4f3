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
    const Json *find(std::size_t first, std::size_t count, const std::string &key) const;

    /// Made when it is asked for: most objects are only searched.
    const object &mapOf(std::size_t first, std::size_t count) const;

    /// A value with a document of its own.
    static Json of(std::string value);
    static Json of(array values);
    static Json of(object values);

private:
    /// A value for the document itself.
    static Json lent(const Json &value);

    mutable std::mutex mutex; // guards the maps
    mutable std::map<std::size_t, object> maps;
};

} // namespace standin
} // namespace json11
