#pragma once

#include "json11-forward.h"
#include "presence-map.h"

#include <memory>
#include <string>

inline namespace kelvane {

/// Every message and nested value has the same parts: for each field a getter, a setter and a remover; a map
/// of the fields that are present; a builder, a reader and a writer. A class lists its fields once, one line
/// each, in the order in which they are written. The macros of macros-on.h declare the rest. The reader and
/// the writer are ordinary functions that use `eachField`.
///
/// The setter marks its key present. The remover resets the field and marks it absent. The getter returns the
/// field's value and does not check its presence. All three work by value. Only the class's own writer reads
/// the presence map.

/// Lets the library's reader and writer visit the fields of an object in the written order: visit(const
/// std::string &key, Type &field, bool &present), or const references for a const object.
struct FieldAccess {
    template <typename Object, typename Visit>
    static void each(Object &object, Visit visit) {
        Object::eachField(object, visit);
    }
};

/// The common part of the nested values. A nested value is an object inside a message and has no "type".
template <typename Value>
class NestedValue {
public:
    /// Returns null for a text that is no JSON object.
    static std::shared_ptr<Value> parseJson(const std::string &text);
    /// The same from an object that is already parsed and is inside another one.
    static std::shared_ptr<Value> fromJson(const json11::Json &object);
    std::string parseMsg() const;
};

} // namespace kelvane
