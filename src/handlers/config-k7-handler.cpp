#include "config-k7-handler.h"

ConfigK7Handler::ConfigK7Handler(QObject *parent)
    : QObject(parent)
    , msg(ConfigK7MsgBuilder().indHeadLvl(0).share()) {
    connect(this, &ConfigK7Handler::changed, this, &ConfigK7Handler::commit);
}

#define GETTER(Type, key, Name) MIRRORED_GETTER(ConfigK7Handler, Type, Name)
#define SETTER(Type, key, Name) MIRRORED_SETTER(ConfigK7Handler, Type, Name)
CONFIG_K7_PROPERTIES(GETTER)
CONFIG_K7_PROPERTIES(SETTER)
#undef GETTER
#undef SETTER

void ConfigK7Handler::setMode(QString mode) {
    if (const auto known = HeadMode::getEnumValue(mode.toStdString())) {
        msg->setIndHeadMode(*known);
        emit changed();
    }
}

QString ConfigK7Handler::enumMode() const {
    return QString::fromStdString(HeadMode(msg->getIndHeadMode()).name());
}

void ConfigK7Handler::accept(MsgHolder holder) {
    const auto received = holder.getAs<ConfigK7Msg>();
    if (!received)
        return;
    CONFIG_K7_PROPERTIES(MIRRORED_ACCEPT)
}

void ConfigK7Handler::commit() {
    const MsgHolder holder(msg);
    emit gotMsg(holder);
    accept(holder);
}
