#include "msg/all-messages.h"

namespace {

struct NoRequest {};

template <typename Request>
std::shared_ptr<Msg> makeRequest() {
    return std::make_shared<Request>();
}

template <>
std::shared_ptr<Msg> makeRequest<NoRequest>() {
    return nullptr;
}

} // namespace

#define TABLE_ROW(NAME, since, Class, Request) \
    {#NAME, ProtoEnum::since, Class::parseJson, makeRequest<Request>(), Class::fromJson},

const std::array<_MsgTypeEnumBase, 50> MsgTypeEnum_values = {{MESSAGE_TYPES(TABLE_ROW)}};
