#include "msg-to-json-parser.h"

#include "msg/all-messages.h"

std::string MsgToJsonParser::toJson(const std::shared_ptr<Msg> &msg) {
    if (!msg)
        return "{}";
    return withClassOf(msg->getType(), std::string(), [&](const auto *ofClass) {
        using Message = std::decay_t<decltype(*ofClass)>;
        return messageCast<Message>(msg)->parseMsg();
    });
}
