#pragma once

#include "msg-holder.h"

#include <string>

/// A message from its JSON text.
inline MsgHolder held(const std::string &text) {
    return MsgHolder(Msg::parseJson(text));
}
