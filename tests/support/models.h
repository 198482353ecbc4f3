#pragma once

#include "messages.h"
#include "msg-holder.h"

#include <QMetaMethod>
#include <QSignalSpy>

/// A message from its JSON text.
inline MsgHolder held(const std::string &text) {
    return MsgHolder(Msg::parseJson(text));
}

/// Notes the name of every signal of the sender's own class, in order. A `QSignalSpy` sees one signal only,
/// so not the order of several.
class SignalRecorder : public QObject {
public:
    explicit SignalRecorder(QObject *sender)
        : meta(sender->metaObject()) {
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(sender, i, this, QObject::staticMetaObject.methodCount() + i);
    }

    /// The names since the last call, separated by blanks.
    std::string take() { return std::exchange(names, {}).join(' ').toStdString(); }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override {
        id = QObject::qt_metacall(call, id, arguments);
        if (id >= 0 && call == QMetaObject::InvokeMetaMethod)
            names.append(meta->method(id).name());
        return -1;
    }

private:
    const QMetaObject *meta;
    QStringList names;
};
