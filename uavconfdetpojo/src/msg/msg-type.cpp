#include "msg/all-messages.h"

inline namespace kelvane {

struct NoRequest {};

namespace {

struct Rows {
    template <typename Message, typename Request>
    static _MsgTypeEnumBase row(const char *name, ProtoEnum since) {
        return {name, since, Message::parseJson, request(static_cast<Request *>(nullptr)), Message::fromJson};
    }

private:
    template <typename Request>
    static std::shared_ptr<Msg> request(const Request *) {
        return std::make_shared<Request>();
    }
    static std::shared_ptr<Msg> request(const NoRequest *) { return nullptr; }
};

} // namespace

const decltype(MsgTypeEnum_values) MsgTypeEnum_values = rowsOfMsgType<Rows>();

std::optional<MsgTypeEnum> MsgType::getReplyType() const {
    for (const MsgTypeEnum type : values())
        if (const auto request = MsgType(type).getRequestMsg(); request && request->getType() == getValue())
            return type;
    return std::nullopt;
}

} // namespace kelvane
