#pragma once

#include "msg/msg.h"

#include <QMetaType>
#include <memory>
#include <utility>

/// Carries a message through Qt signals and the documents. Copies share the message.
class MsgHolder {
public:
    MsgHolder() = default;
    explicit MsgHolder(std::shared_ptr<Msg> message)
        : msg(std::move(message)) {}

    void setMsg(std::shared_ptr<Msg> message) { msg = std::move(message); } ///< No caller today.
    std::shared_ptr<Msg> getMsg() const { return msg; }

    /// The message as its own class. Null if there is none or if it is of another type.
    template <typename Message>
    std::shared_ptr<Message> getAs() const {
        return messageCast<Message>(msg);
    }

private:
    std::shared_ptr<Msg> msg;
};

Q_DECLARE_METATYPE(MsgHolder)
