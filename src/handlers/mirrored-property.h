#pragma once

#include "enum-class.h"

#include <QList>
#include <QString>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

/// A settings front-end mirrors the fields of one message as properties for the screens. It lists them once,
/// in a macro, in the order in which `accept` copies them. An entry names the type that the screens see, the
/// field and the accessors: ENTRY(int, indLedLvl, IndLedLvl). The macros below make properties, accessors and
/// signals of the list.

#define MIRRORED_PROPERTY(Type, key, Name) \
    Q_PROPERTY(Type key READ get##Name WRITE set##Name NOTIFY key##Changed)
#define MIRRORED_ACCESSORS(Type, key, Name) \
    Type get##Name() const;                 \
    void set##Name(Type value);
#define MIRRORED_SIGNAL(Type, key, Name) void key##Changed();

#define MIRRORED_GETTER(Class, Type, Name)       \
    Type Class::get##Name() const {              \
        return toScreen<Type>(msg->get##Name()); \
    }
#define MIRRORED_SETTER(Class, Type, Name)                             \
    void Class::set##Name(Type value) {                                \
        msg->set##Name(fromScreen<decltype(msg->get##Name())>(value)); \
    }

/// Copies a field of `received` through the setter, then emits its Notify signal, also if the value is the
/// same. A control that the user has touched reads its value again at this signal.
#define MIRRORED_ACCEPT(Type, key, Name)              \
    set##Name(toScreen<Type>(received->get##Name())); \
    emit key##Changed();

template <typename Screen, typename Field>
Screen toScreen(const Field &field) {
    if constexpr (std::is_same_v<Field, std::string>) {
        return QString::fromStdString(field);
    } else if constexpr (std::is_same_v<Screen, QList<int>>) {
        QList<int> list;
        for (const auto element : field)
            list.append(static_cast<int>(element));
        return list;
    } else {
        return static_cast<Screen>(field);
    }
}

/// Throws std::out_of_range for a number that is no enumerator of the field's enumeration.
template <typename Field, typename Screen>
Field fromScreen(const Screen &value) {
    if constexpr (std::is_same_v<Screen, QString>) {
        return value.toStdString();
    } else if constexpr (std::is_same_v<Screen, QList<int>>) {
        Field field;
        for (const int element : value)
            field.push_back(fromScreen<typename Field::value_type>(element));
        return field;
    } else if constexpr (std::is_enum_v<Field>) {
        if (value < 0 || value >= EnumClassOf<Field>::type::getLength())
            throw std::out_of_range("no such enumerator: " + std::to_string(value));
        return static_cast<Field>(value);
    } else {
        return static_cast<Field>(value);
    }
}
