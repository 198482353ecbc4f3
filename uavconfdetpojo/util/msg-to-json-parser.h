#pragma once

#include "msg/msg.h"

#include <memory>
#include <string>

inline namespace kelvane {

/// Makes the text of a message, as it goes to the device.
class MsgToJsonParser {
public:
    /// Returns the text of the message, by the class of its type. Returns "{}" for a null pointer, and the
    /// empty string for a type that is no enumerator. It only reads, so any thread may call it.
    static std::string toJson(const std::shared_ptr<Msg> &msg);
};

} // namespace kelvane
