#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace json11 {
class Json;
}

/// Every message and nested value lives the same life: per field a getter, a setter and a remover, a map that
/// tells which fields are present, a builder, a reader and a writer. A class states its fields once, in wire
/// order, as a list macro of FIELD(type, key, AccessorName); the macros below make the rest of it.
///
/// The setter marks its key present, the remover resets the field and marks it absent, the getter returns
/// what the field holds and does not look at its presence. All three work by value. Only the class's own
/// writer reads the presence map.
///
/// A type that holds a comma needs an alias to stand in a list.

#define FIELD_ACCESSORS(Type, key, Name) \
public:                                  \
    Type get##Name() const {             \
        return key;                      \
    }                                    \
    void set##Name(Type newValue) {      \
        initVals.at(#key) = true;        \
        key = std::move(newValue);       \
    }                                    \
    void remove##Name() {                \
        initVals.at(#key) = false;       \
        key = Type();                    \
    }                                    \
                                         \
private:                                 \
    Type key{};

#define FIELD_ABSENT(Type, key, Name) {#key, false},

/// The body of a class with the fields of the list. `fromJson` fills it from a JSON object that is parsed
/// already; `parseMsg` writes.
#define FIELDS_BODY(Class, FIELDS)                                      \
    FIELDS(FIELD_ACCESSORS)                                             \
public:                                                                 \
    static std::shared_ptr<Class> fromJson(const json11::Json &object); \
    std::string parseMsg() const;                                       \
                                                                        \
private:                                                                \
    std::map<std::string, bool> initVals{FIELDS(FIELD_ABSENT)};

/// Body of a nested value, which has no type of its own. `parseJson` returns null for text that is no object.
#define NESTED_VALUE_BODY(Class, FIELDS) \
    FIELDS_BODY(Class, FIELDS)           \
public:                                  \
    static std::shared_ptr<Class> parseJson(const std::string &text);

#define FIELD_BUILDER(Type, key, Name)         \
    auto key(Type newValue) {                  \
        held().set##Name(std::move(newValue)); \
        return *this;                          \
    }

/// Body of the builder that holds its value in `member`: one operation per field, each returning a copy of
/// the builder, and `build()`.
#define BUILDER_BODY(Class, member, FIELDS) \
public:                                     \
    FIELDS(FIELD_BUILDER)                   \
    Class build() const {                   \
        return member;                      \
    }                                       \
                                            \
private:                                    \
    Class &held() {                         \
        return member;                      \
    }                                       \
    Class member;

#define NESTED_VALUE(Class, member, FIELDS) \
    class Class {                           \
        NESTED_VALUE_BODY(Class, FIELDS)    \
    };                                      \
    class Class##Builder {                  \
        BUILDER_BODY(Class, member, FIELDS) \
    };
