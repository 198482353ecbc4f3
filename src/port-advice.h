#pragma once

#include "serial-interface.h"

#include <chrono>
#include <memory>
#include <string>

inline namespace kelvane {

/// Why a serial terminal did not become the device, or took no request, and what helps, in words for the
/// terminal's user.

/// It did not open, for this reason as in `errno`.
std::string adviceOnError(int error);
/// Its reply within the time-out was no STATE; null for none.
std::string adviceOnReply(const std::shared_ptr<Msg> &reply, std::chrono::milliseconds timeout);
/// The line did not take all of this request within the time-out.
std::string adviceOnRefusal(const Msg &request, Sent sent, std::chrono::milliseconds timeout);

} // namespace kelvane
