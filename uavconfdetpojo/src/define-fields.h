#pragma once

#include "field-io.h"
#include "object-writer.h"
#include "utils.h"

/// The reader and the writer of a class, made from its field list; the counterpart of the declarations in
/// fields.h. Each key is looked at on its own: one that fails takes nothing from the others.

#define READ_FIELD(Type, key, Name)                       \
    if (items.count(#key) != 0) {                         \
        if (auto read = FieldIo<Type>::read(#key, items)) \
            result->set##Name(std::move(*read));          \
    }

#define WRITE_FIELD(Type, key, Name) \
    if (initVals.at(#key))           \
        writer.field(#key, key);

#define DEFINE_FROM_JSON(Class, FIELDS)                                  \
    std::shared_ptr<Class> Class::fromJson(const json11::Json &object) { \
        auto result = std::make_shared<Class>();                         \
        [[maybe_unused]] const auto &items = object.object_items();      \
        FIELDS(READ_FIELD)                                               \
        return result;                                                   \
    }

#define DEFINE_PARSE_JSON(Class, Result)                                \
    std::shared_ptr<Result> Class::parseJson(const std::string &text) { \
        const auto object = Utils::getObject(text);                     \
        return object ? fromJson(*object) : nullptr;                    \
    }

#define DEFINE_NESTED_VALUE(Class, FIELDS) \
    DEFINE_FROM_JSON(Class, FIELDS)        \
    DEFINE_PARSE_JSON(Class, Class)        \
    std::string Class::parseMsg() const {  \
        ObjectWriter writer;               \
        FIELDS(WRITE_FIELD)                \
        return writer.end();               \
    }

/// A message ends with its type, present or not.
#define DEFINE_MESSAGE(Class, FIELDS)     \
    DEFINE_FROM_JSON(Class, FIELDS)       \
    DEFINE_PARSE_JSON(Class, Msg)         \
    std::string Class::parseMsg() const { \
        ObjectWriter writer;              \
        FIELDS(WRITE_FIELD)               \
        writer.field("type", getType());  \
        return writer.end();              \
    }
