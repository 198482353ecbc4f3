#pragma once

#include "msg/msg.h"

#include <memory>
#include <string>

inline namespace kelvane {

/// Messages to the text that goes to the device.
class MsgToJsonParser {
public:
    /// "{}" for a null pointer, the empty string for a type that is no enumerator; otherwise the text of the
    /// class that the message's type names. Only reads, so any thread may call it.
    static std::string toJson(const std::shared_ptr<Msg> &msg);
};

} // namespace kelvane
