#pragma once

#include <any>
#include <map>
#include <string>

inline namespace kelvane {

/// Parameter values of an EW output, by name. The device defines the names. A value must be a `json11::Json`
/// inside the `std::any`. Any other value is not written, and standard output gets a line.
using ParamValues = std::map<std::string, std::any>;

} // namespace kelvane
