#pragma once

#include "fields.h"
#include "msg/msg-type.h"

#include <memory>
#include <string>

inline namespace kelvane {

/// What all messages have: their type. There are no virtual operations, so a message is made by
/// `std::make_shared` of its concrete class, and a holder of a `shared_ptr<Msg>` reaches that class by
/// `messageCast`. A message is filled by one thread and only read once others have it.
class Msg {
public:
    MsgTypeEnum getType() const { return type; }
    /// Not to be called with another type on an object made as a concrete class.
    void setType(MsgTypeEnum newType);
    /// Leaves the first type, CONFIG. No caller today.
    void removeType();

    /// Any text from the device to the message of its type: null if the text is no JSON object with a known
    /// "type". A bad field leaves that field absent and the message valid.
    static std::shared_ptr<Msg> parseJson(const std::string &text);

    /// The base part as text; messages are written by the writer of their own class. No caller today.
    std::string parseMsg() const;

private:
    enum class Key { type, COUNT };

    MsgTypeEnum type{};
    PresenceMap<Key> initVals;
};

/// The message as its own class: null if it is of another type, or no message at all.
template <typename Message>
std::shared_ptr<Message> messageCast(const std::shared_ptr<Msg> &msg) {
    return msg && msg->getType() == Message::TYPE ? std::static_pointer_cast<Message>(msg) : nullptr;
}

/// What all concrete message classes have in common; each adds its fields and its `TYPE`.
template <typename Message>
class TypedMsg : public Msg {
public:
    TypedMsg() { setType(Message::TYPE); }

    /// Null for text that is no JSON object. The text's own "type" is not looked at.
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
