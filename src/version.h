#pragma once

#include <string>

namespace version {

/// The application's version, as the window's title and the help screen show it.
std::string getVersion();

} // namespace version
