#pragma once

#include <QMetaMethod>
#include <QStringList>
#include <utility>

/// Notes by name and in order every signal that the sender's own class declares. A `QSignalSpy` sees one
/// signal, which does not tell the order among several.
class SignalRecorder : public QObject {
public:
    explicit SignalRecorder(QObject *sender)
        : meta(sender->metaObject()) {
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(sender, i, this, QObject::staticMetaObject.methodCount() + i);
    }

    /// What was noted since the last call, separated by blanks.
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
