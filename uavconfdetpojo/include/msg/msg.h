#pragma once

#include "fields.h"
#include "msg/msg-type.h"

#include <memory>
#include <string>

inline namespace kelvane {

/// The base of all messages: their type. There are no virtual operations. So make a message with
/// `std::make_shared` of its own class, and get from a `shared_ptr<Msg>` to that class with `messageCast`.
/// One thread fills a message; when others have it, it is only read.
class Msg {
public:
    MsgTypeEnum getType() const { return type; }
    /// Do not set another type on an object of a message's own class.
    void setType(MsgTypeEnum newType);
    /// The type is then the first one, CONFIG, and absent. No caller today.
    void removeType();

    /// Makes a message from a text of the device, by its "type". Returns null if the text is no JSON object
    /// with a known type. A bad field stays absent, and the message is valid.
    static std::shared_ptr<Msg> parseJson(const std::string &text);

    /// The base part as text. The writer of a message's own class writes the whole message. No caller today.
    std::string parseMsg() const;

private:
    enum class Key { type, COUNT };

    MsgTypeEnum type{};
    PresenceMap<Key> initVals;
};

/// The message as its own class. Null if it is of another type or a null pointer.
template <typename Message>
std::shared_ptr<Message> messageCast(const std::shared_ptr<Msg> &msg) {
    return msg && msg->getType() == Message::TYPE ? std::static_pointer_cast<Message>(msg) : nullptr;
}

/// The common part of all message classes. Each of them adds its fields and its `TYPE`.
template <typename Message>
class TypedMsg : public Msg {
public:
    TypedMsg() { setType(Message::TYPE); }

    /// Returns null for a text that is no JSON object. The text's "type" is ignored.
    static std::shared_ptr<Msg> parseJson(const std::string &text);
    static std::shared_ptr<Message> fromJson(const json11::Json &object);
    std::string parseMsg() const;
};

class MsgBuilder {
public:
    MsgBuilder type(MsgTypeEnum newType) {
        m_msg.setType(newType);
        return *this;
    }
    Msg build() const { return m_msg; }
    std::shared_ptr<Msg> share() const { return std::make_shared<Msg>(m_msg); }

private:
    Msg m_msg;
};

} // namespace kelvane
