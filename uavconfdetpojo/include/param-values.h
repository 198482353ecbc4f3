#pragma once

#include <any>
#include <map>
#include <string>

inline namespace kelvane {

/// Parameter values of an EW output by name, an open set that the device defines at run time. A value is
/// valid only as a `json11::Json` inside the `std::any`; any other is written as nothing, after a complaint
/// on standard output.
using ParamValues = std::map<std::string, std::any>;

} // namespace kelvane
