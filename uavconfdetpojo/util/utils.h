#pragma once

#include <json11.hpp>
#include <optional>
#include <string>
#include <vector>

inline namespace kelvane {

/// Getters for the items of a JSON object. For a missing key or a value of the wrong JSON type they return an
/// empty optional. They do not throw, with the exception below.
class Utils {
public:
    /// Parses a text that must be one JSON object and nothing else.
    static std::optional<json11::Json> getObject(const std::string &text);

    static std::optional<std::string> getStringField(const std::string &key,
                                                     const json11::Json::object &items);
    /// A fraction is rounded towards zero.
    static std::optional<int> getIntField(const std::string &key, const json11::Json::object &items);
    static std::optional<double> getDoubleField(const std::string &key, const json11::Json::object &items);
    /// JSON booleans only; numbers and strings do not count.
    static std::optional<bool> getBoolField(const std::string &key, const json11::Json::object &items);

    /// The numbers of an array; other elements are left out. Empty for a value that is no array. A missing
    /// key throws std::out_of_range.
    static std::vector<int> getIntVec(const std::string &key, const json11::Json::object &items);
    static std::vector<float> getFloatVec(const std::string &key, const json11::Json::object &items);
};

} // namespace kelvane
