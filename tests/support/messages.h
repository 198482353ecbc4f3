#pragma once

#include "msg-holder.h"
#include "msg-to-json-parser.h"

#include <QObject>
#include <string>
#include <vector>

/// A message from its JSON text.
inline MsgHolder held(const std::string &text) {
    return MsgHolder(Msg::parseJson(text));
}

/// The texts that a settings front-end sends, each as it is at that moment: the message goes on living.
struct SentTexts : std::vector<std::string> {
    template <typename Handler>
    explicit SentTexts(Handler &handler) {
        QObject::connect(
            &handler, &Handler::gotMsg,
            [this](const MsgHolder &holder) { push_back(MsgToJsonParser::toJson(holder.getMsg())); });
    }
};
