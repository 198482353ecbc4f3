#pragma once

#include "json11-forward.h"
#include "presence-map.h"

#include <memory>
#include <string>

inline namespace kelvane {

/// Every message and nested value lives the same life: per field a getter, a setter and a remover, a map that
/// tells which fields are present, a builder, a reader and a writer. A class states its fields once, in wire
/// order, one line each; the macros of macros-on.h declare the rest, and the reader and the writer are
/// ordinary functions over `eachField`.
///
/// The setter marks its key present, the remover resets the field and marks it absent, the getter returns
/// what the field holds and does not look at its presence. All three work by value. Only the class's own
/// writer reads the presence map.

/// Lets the library's reader and writer walk the fields of an object in wire order:
/// visit(const std::string &key, Type &field, bool &present), or const references for a const object.
struct FieldAccess {
    template <typename Object, typename Visit>
    static void each(Object &object, Visit visit) {
        Object::eachField(object, visit);
    }
};

/// What nested values have in common. They have no type of their own.
template <typename Value>
class NestedValue {
public:
    /// Null for text that is no JSON object.
    static std::shared_ptr<Value> parseJson(const std::string &text);
    /// From an object that is parsed already and stands inside another one.
    static std::shared_ptr<Value> fromJson(const json11::Json &object);
    std::string parseMsg() const;
};

} // namespace kelvane
