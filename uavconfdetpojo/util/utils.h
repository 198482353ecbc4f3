#pragma once

#include <json11.hpp>
#include <optional>
#include <string>
#include <vector>

inline namespace kelvane {

/// Getters over the items of a JSON object. A missing key or a value of the wrong JSON type is reported by an
/// empty optional, never by an exception, except where said.
class Utils {
public:
    /// Parses text that must be one JSON object and nothing else.
    static std::optional<json11::Json> getObject(const std::string &text);

    static std::optional<std::string> getStringField(const std::string &key,
                                                     const json11::Json::object &items);
    /// A fraction is cut off towards zero.
    static std::optional<int> getIntField(const std::string &key, const json11::Json::object &items);
    static std::optional<double> getDoubleField(const std::string &key, const json11::Json::object &items);
    /// JSON booleans only; numbers and strings do not count.
    static std::optional<bool> getBoolField(const std::string &key, const json11::Json::object &items);

    /// The numbers of an array, other elements left out; empty for a value that is no array. A missing key
    /// throws std::out_of_range.
    static std::vector<int> getIntVec(const std::string &key, const json11::Json::object &items);
    static std::vector<float> getFloatVec(const std::string &key, const json11::Json::object &items);
};

} // namespace kelvane
