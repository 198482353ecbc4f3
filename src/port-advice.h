#pragma once

#include "msg/msg.h"

#include <chrono>
#include <memory>
#include <string>

/// Why a serial terminal did not become the device, and what helps, in words for the terminal's user.

/// It did not open, for this reason as in `errno`.
std::string adviceOnError(int error);
/// Its reply within the time-out was no STATE; null for none.
std::string adviceOnReply(const std::shared_ptr<Msg> &reply, std::chrono::milliseconds timeout);
