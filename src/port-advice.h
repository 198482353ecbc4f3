#pragma once

#include "serial-interface.h"

#include <chrono>
#include <memory>
#include <string>

inline namespace kelvane {

/// Texts for the user: why a serial terminal is not the device or did not take a request, and what helps.

/// The port did not open. `error` is the `errno` of the failed call.
std::string adviceOnError(int error);
/// The reply within the time-out was not a STATE. A null `reply` means that none came.
std::string adviceOnReply(const std::shared_ptr<Msg> &reply, std::chrono::milliseconds timeout);
/// The line did not take all of this request within the time-out.
std::string adviceOnRefusal(const Msg &request, Sent sent, std::chrono::milliseconds timeout);

} // namespace kelvane
