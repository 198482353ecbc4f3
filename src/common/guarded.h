#pragma once

#include "log.h"

#include <QMetaObject>
#include <exception>

/// An object of class `Object` that the screens may call. Qt's declarative engine cannot carry a C++
/// exception. This class catches what a method or a setter throws, and logs an error line. The call ends, the
/// process goes on. C++ callers call `Object` directly and see the exception.
///
/// The engine reads properties and calls the overrides of models by another way, which nothing guards. Those
/// must not throw.
template <typename Object>
class Guarded : public Object {
public:
    using Object::Object;

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override {
        try {
            return Object::qt_metacall(call, id, arguments);
        } catch (const std::exception &error) {
            Log::error(this->metaObject()->className(), error.what());
        } catch (...) {
            Log::error(this->metaObject()->className(), "unknown exception");
        }
        return -1; // handled: no derived class looks for the call
    }
};
