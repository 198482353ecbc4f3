#include "config-msg-handler.h"

ConfigMsgHandler::ConfigMsgHandler(QObject *parent)
    : QObject(parent)
    , msg(ConfigMsgBuilder().indLedLvl(75).indSndLvl(100).share()) {
    connect(this, &ConfigMsgHandler::changed, this, &ConfigMsgHandler::commit);
}

#define GETTER(Type, key, Name) MIRRORED_GETTER(ConfigMsgHandler, Type, Name)
#define SETTER(Type, key, Name) MIRRORED_SETTER(ConfigMsgHandler, Type, Name)
#define NO_SETTER(Type, key, Name)
CONFIG_PROPERTIES(GETTER, GETTER)
CONFIG_PROPERTIES(SETTER, NO_SETTER)
#undef GETTER
#undef SETTER
#undef NO_SETTER

void ConfigMsgHandler::setMode(int value) {
    msg->setMode(fromScreen<DetModeEnum>(value));
    emit stringModeChanged();
}

void ConfigMsgHandler::setRanges(QList<int> value) {
    if (!value.isEmpty())
        msg->setRanges(fromScreen<std::vector<FreqModeEnum>>(value));
}

void ConfigMsgHandler::setAtten(int value) {
    msg->setAtten(value);
    sens = SensLevel::byAtten(value);
    emit sensChanged();
}

QString ConfigMsgHandler::stringMode() const {
    return QString::fromStdString(DetMode(msg->getMode()).getName());
}

QString ConfigMsgHandler::getSens() const {
    return QString::fromStdString(SensLevel(sens).getEnumName());
}

void ConfigMsgHandler::nextSens() {
    sens = SensLevel(sens).next();
    msg->setAtten(SensLevel(sens).getAtten());
    emit sensChanged();
}

void ConfigMsgHandler::setStringMode(QString mode) {
    if (const auto known = DetMode::getEnumValue(mode.toStdString())) {
        msg->setMode(*known);
        emit changed();
    }
}

QString ConfigMsgHandler::enumMode() const {
    return QString::fromStdString(DetMode(msg->getMode()).name());
}

void ConfigMsgHandler::accept(MsgHolder holder) {
    const auto received = holder.getAs<ConfigMsg>();
    if (!received)
        return;
    CONFIG_PROPERTIES(MIRRORED_ACCEPT, MIRRORED_ACCEPT)
}

void ConfigMsgHandler::commit() {
    if (msg->getRanges().empty())
        return;
    const MsgHolder holder(msg);
    emit gotMsg(holder);
    accept(holder);
}
