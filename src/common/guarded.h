#pragma once

#include "log.h"

#include <QMetaObject>
#include <exception>

/// An object of class `Object` as the screens may call it. Qt's declarative engine cannot carry a C++
/// exception: one that a method or setter throws ends that call here, with an error line, instead of the
/// process. C++ callers go past this boundary and see the exception.
///
/// The engine reads properties and runs the overrides of models without passing here, so those must not
/// throw.
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
        return -1; // handled: no class further down is to look for the call
    }
};
