#include "msg/msg.h"

#include "object-writer.h"
#include "utils.h"

void Msg::setType(MsgTypeEnum newType) {
    initVals.at("type") = true;
    type = newType;
}

void Msg::removeType() {
    type = MsgTypeEnum{};
    initVals.at("type") = false;
}

std::shared_ptr<Msg> Msg::parseJson(const std::string &text) {
    const auto object = Utils::getObject(text);
    if (!object)
        return nullptr;
    const auto typeName = Utils::getStringField("type", object->object_items());
    if (!typeName)
        return nullptr;
    const auto known = MsgType::getEnumValue(*typeName);
    if (!known)
        return nullptr;
    return MsgTypeEnum_values.at(static_cast<std::size_t>(*known)).fromJson(*object);
}

std::string Msg::parseMsg() const {
    ObjectWriter writer;
    if (initVals.at("type"))
        writer.field("type", type);
    return writer.end();
}
