#include "msg/all-messages.h"

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

const std::array<_MsgTypeEnumBase, 50> MsgTypeEnum_values = rowsOfMsgType<Rows>();
