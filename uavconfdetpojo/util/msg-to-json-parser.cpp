#include "msg-to-json-parser.h"

#include "msg/all-messages.h"

#define WRITE_CASE(NAME, since, Class, Request) \
    case MsgTypeEnum::NAME:                     \
        return std::static_pointer_cast<Class>(msg)->parseMsg();

std::string MsgToJsonParser::toJson(const std::shared_ptr<Msg> &msg) {
    if (!msg)
        return "{}";
    switch (msg->getType()) { MESSAGE_TYPES(WRITE_CASE) }
    return {};
}
