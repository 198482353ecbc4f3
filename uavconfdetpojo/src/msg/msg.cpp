#include "msg/msg.h"

#include "object-io.h"

void Msg::setType(MsgTypeEnum newType) {
    initVals.at(Key::type) = true;
    type = newType;
}

void Msg::removeType() {
    type = MsgTypeEnum{};
    initVals.at(Key::type) = false;
}

std::shared_ptr<Msg> Msg::parseJson(const std::string &text) {
    const auto object = Utils::getObject(text);
    if (!object)
        return nullptr;
    const auto known = FieldIo<MsgTypeEnum>::read((*object)["type"]);
    return known ? MsgTypeEnum_values.at(static_cast<std::size_t>(*known)).fromJson(*object) : nullptr;
}

std::string Msg::parseMsg() const {
    ObjectWriter writer;
    if (initVals.at(Key::type))
        writer.field("type", type);
    return writer.end();
}
