#pragma once

#include "fields.h"
#include "msg/msg-type.h"

#include <map>
#include <memory>
#include <string>

/// What all messages have: their type. There are no virtual operations, so a message is made by
/// `std::make_shared` of its concrete class, and a holder of a `shared_ptr<Msg>` finds that class by
/// `getType()` and reaches it with `std::static_pointer_cast`. A message is filled by one thread and only
/// read once others have it.
class Msg {
public:
    MsgTypeEnum getType() const { return type; }
    /// Not to be called with another type on an object made as a concrete class.
    void setType(MsgTypeEnum newType);
    void removeType();

    /// Any text from the device to the message of its type: null if the text is no JSON object with a known
    /// "type". A bad field leaves that field absent and the message valid.
    static std::shared_ptr<Msg> parseJson(const std::string &text);

    /// The base part as text; messages are written by the writer of their own class.
    std::string parseMsg() const;

private:
    MsgTypeEnum type{};
    std::map<std::string, bool> initVals{{"type", false}};
};

class MsgBuilder {
public:
    MsgBuilder type(MsgTypeEnum newType) {
        m_msg.setType(newType);
        return *this;
    }
    Msg build() const { return m_msg; }

private:
    Msg m_msg;
};

/// A message class of the fields of the list, and its builder.
#define MESSAGE(Class, member, TYPE, FIELDS)                            \
    class Class : public Msg {                                          \
        FIELDS_BODY(Class, FIELDS)                                      \
    public:                                                             \
        Class() { setType(MsgTypeEnum::TYPE); }                         \
        static std::shared_ptr<Msg> parseJson(const std::string &text); \
    };                                                                  \
    class Class##Builder {                                              \
        BUILDER_BODY(Class, member, FIELDS)                             \
    };

/// The list of a message that is its type and nothing else.
#define NO_FIELDS(FIELD)
