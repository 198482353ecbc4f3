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
/// Stands in the place of a request class where no request makes the device send a type.
struct NoRequest;

struct _MsgTypeEnumBase {
    std::string strValue;
    ProtoEnum sinceProto;
    /// Text to message of the row's class; null for text that is no JSON object.
    std::function<std::shared_ptr<Msg>(const std::string &)> parseFunc;
    /// Null where no request makes the device send this type. Shared by all who send it; never modified.
    std::shared_ptr<Msg> requestMsg;
    /// The same as `parseFunc` for an object that is parsed already.
    std::function<std::shared_ptr<Msg>(const json11::Json &)> fromJson;
};

ENUMERATION_WITHOUT_ROWS(MsgType)

class MsgType : public EnumClass<MsgTypeEnum, MsgTypeEnum_values> {
public:
    using EnumClass::EnumClass;

    ProtoEnum getSinceProto() const { return record().sinceProto; }
    /// The request that makes the device send this type, or null.
    std::shared_ptr<Msg> getRequestMsg() const { return record().requestMsg; }
    /// The type that the device sends at this request, or nothing: settings and orders are answered by OK or
    /// FAIL, and SET_MASK by MASK_RESULT or FAIL.
    std::optional<MsgTypeEnum> getReplyType() const;
    static std::function<std::shared_ptr<Msg>(const std::string &)> getParseFunc(MsgTypeEnum type) {
        return MsgType(type).record().parseFunc;
    }
};

#define DECLARE_CLASS(NAME, since, Message, Request) class Message;
ENUMERATORS(DECLARE_CLASS)

/// Calls visit(Message *) with a null pointer to the class of a type, which tells no more than the class.
/// `otherwise` is the result for a number that is no type.
template <typename Result, typename Visit>
Result withClassOf(MsgTypeEnum type, Result otherwise, Visit visit) {
#define VISIT_CLASS(NAME, since, Message, Request) \
    case MsgTypeEnum::NAME:                        \
        return visit(static_cast<Message *>(nullptr));
    switch (type) { ENUMERATORS(VISIT_CLASS) }
    return otherwise;
}

/// The rows of the table, each made by Make::row<Message, Request>(name, first generation).
template <typename Make>
auto rowsOfMsgType() {
#define MAKE_ROW(NAME, since, Message, Request) Make::template row<Message, Request>(#NAME, ProtoEnum::since),
    return std::array<_MsgTypeEnumBase, MsgType::length>{{ENUMERATORS(MAKE_ROW)}};
}

#include "macros-off.h"
