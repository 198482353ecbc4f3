#pragma once

#include "enum-class.h"
#include "json11-forward.h"
#include "proto.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "macros-on.h"

#include "msg/message-list.h"

class Msg;
/// In place of a request class: no request makes the device send this type.
struct NoRequest;

struct _MsgTypeEnumBase {
    std::string strValue;
    ProtoEnum sinceProto;
    /// Makes a message of the row's class from a text; null for a text that is no JSON object.
    std::function<std::shared_ptr<Msg>(const std::string &)> parseFunc;
    /// Null if no request makes the device send this type. All senders share it; do not change it.
    std::shared_ptr<Msg> requestMsg;
    /// The same as `parseFunc` for an object that is already parsed.
    std::function<std::shared_ptr<Msg>(const json11::Json &)> fromJson;
};

ENUMERATION_WITHOUT_ROWS(MsgType)

class MsgType : public EnumClass<MsgTypeEnum, MsgTypeEnum_values> {
public:
    using EnumClass::EnumClass;

    ProtoEnum getSinceProto() const { return record().sinceProto; }
    /// The request that makes the device send this type, or null.
    std::shared_ptr<Msg> getRequestMsg() const { return record().requestMsg; }
    /// The type of message with which the device answers this request. Nothing for other messages: settings
    /// and orders are answered by OK or FAIL, and SET_MASK by MASK_RESULT or FAIL.
    std::optional<MsgTypeEnum> getReplyType() const;
    static std::function<std::shared_ptr<Msg>(const std::string &)> getParseFunc(MsgTypeEnum type) {
        return MsgType(type).record().parseFunc;
    }
};

#define DECLARE_CLASS(NAME, since, Message, Request) class Message;
ENUMERATORS(DECLARE_CLASS)

/// Calls visit(Message *) with a null pointer, whose class is that of the type. `otherwise` is the result for
/// a number that is no type.
template <typename Result, typename Visit>
Result withClassOf(MsgTypeEnum type, Result otherwise, Visit visit) {
#define VISIT_CLASS(NAME, since, Message, Request) \
    case MsgTypeEnum::NAME:                        \
        return visit(static_cast<Message *>(nullptr));
    switch (type) { ENUMERATORS(VISIT_CLASS) }
    return otherwise;
}

/// The rows of the table. Make::row<Message, Request>(name, first generation) makes each of them.
template <typename Make>
auto rowsOfMsgType() {
#define MAKE_ROW(NAME, since, Message, Request) Make::template row<Message, Request>(#NAME, ProtoEnum::since),
    return std::array<_MsgTypeEnumBase, MsgType::length>{{ENUMERATORS(MAKE_ROW)}};
}

#include "macros-off.h"
