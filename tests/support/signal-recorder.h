#pragma once

#include <QMetaMethod>
#include <QObject>
#include <string>
#include <utility>
#include <vector>

/// Notes by name and in order every signal that the sender's own class declares. A `QSignalSpy` sees one
/// signal, which does not tell the order among several.
class SignalRecorder : public QObject {
public:
    explicit SignalRecorder(QObject *sender)
        : observed(sender) {
        const QMetaObject &meta = *sender->metaObject();
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(sender, i, this, QObject::staticMetaObject.methodCount() + i);
        }
    }

    /// What was noted since the last call.
    std::vector<std::string> take() { return std::exchange(names, {}); }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override {
        id = QObject::qt_metacall(call, id, arguments);
        if (id >= 0 && call == QMetaObject::InvokeMetaMethod)
            names.push_back(observed->metaObject()->method(id).name().toStdString());
        return -1;
    }

private:
    QObject *observed;
    std::vector<std::string> names;
};
