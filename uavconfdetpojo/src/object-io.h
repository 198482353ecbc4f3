#pragma once

#include "field-io.h"
#include "fields.h"
#include "msg/msg.h"
#include "utils.h"

#include <string>

inline namespace kelvane {

/// The reader and the writer of all classes of the protocol. They go through the fields of a class. A source
/// file instantiates them for each class.

/// Writes an object: each present key on its own line, no indentation, no byte behind the closing brace.
class ObjectWriter {
public:
    template <typename T>
    void field(const std::string &key, const T &value) {
        text += first ? "\"" : ",\n\"";
        first = false;
        text += key;
        text += "\" : ";
        FieldIo<T>::write(text, value);
    }

    template <typename Object>
    void fieldsOf(const Object &object) {
        FieldAccess::each(
            object,
            [this](const std::string &key, const auto &value, bool present) {
                if (present)
                    this->field(key, value);
            });
    }

    std::string end() const { return text + "\n}"; }

private:
    std::string text = "{\n";
    bool first = true;
};

/// Reads a field if its key is there and its value is of the right kind. Otherwise the field stays absent,
/// and the result is false.
template <typename T>
bool readField(const json11::Json &object, const std::string &key, T &value, bool &present) {
    const json11::Json &json = object[key];
    // The JSON library also returns null for a missing key. If the kind accepts null, a slower search
    // decides.
    auto read = FieldIo<T>::read(json);
    if (!read || (json.is_null() && object.object_items().count(key) == 0))
        return false;
    value = std::move(*read);
    return present = true;
}

/// Fills an object's fields from a JSON object. Each key is read by itself: if one fails, the others are
/// still read.
template <typename Object>
void readFields(Object &object, const json11::Json &json) {
    FieldAccess::each(
        object, [&json](const std::string &key, auto &value,
                        bool &present) { readField(json, key, value, present); });
}

/// Removes the sign of a zero inside a nested value. A zero in a message's own fields keeps its sign.
struct UnsignZeros {
    template <typename T>
    void operator()(T &value) const {
        if constexpr (std::is_floating_point_v<T>)
            value += 0; // -0.0 + 0 is 0
    }
    template <typename T>
    void operator()(std::vector<T> &list) const {
        for (T &element : list)
            (*this)(element);
    }
    void operator()(std::map<std::string, std::any> &values) const {
        for (auto &[name, value] : values)
            if (auto *json = std::any_cast<json11::Json>(&value))
                *json = unsigned_(*json);
    }

private:
    static json11::Json unsigned_(const json11::Json &json) {
        if (json.is_number() && json.number_value() == 0)
            return 0;
        if (json.is_array()) {
            json11::Json::array items = json.array_items();
            for (json11::Json &item : items)
                item = unsigned_(item);
            return items;
        }
        if (json.is_object()) {
            json11::Json::object items = json.object_items();
            for (auto &[key, item] : items)
                item = unsigned_(item);
            return items;
        }
        return json;
    }
};

/// The same as `readFields`, for an object inside another one.
template <typename Object>
void readNestedFields(Object &object, const json11::Json &json) {
    FieldAccess::each(
        object,
        [&json](const std::string &key, auto &value, bool &present) {
            if (readField(json, key, value, present))
                UnsignZeros()(value);
        });
}

template <typename Value>
std::shared_ptr<Value> NestedValue<Value>::fromJson(const json11::Json &object) {
    auto result = std::make_shared<Value>();
    readNestedFields(*result, object);
    return result;
}

template <typename Value>
std::shared_ptr<Value> NestedValue<Value>::parseJson(const std::string &text) {
    const auto object = Utils::getObject(text);
    if (!object)
        return nullptr;
    auto result = std::make_shared<Value>();
    readFields(*result, *object);
    return result;
}

template <typename Value>
std::string NestedValue<Value>::parseMsg() const {
    ObjectWriter writer;
    writer.fieldsOf(static_cast<const Value &>(*this));
    return writer.end();
}

template <typename Message>
std::shared_ptr<Message> TypedMsg<Message>::fromJson(const json11::Json &object) {
    auto result = std::make_shared<Message>();
    readFields(*result, object);
    return result;
}

template <typename Message>
std::shared_ptr<Msg> TypedMsg<Message>::parseJson(const std::string &text) {
    const auto object = Utils::getObject(text);
    return object ? fromJson(*object) : nullptr;
}

/// On purpose: the type is always written, at the end of the message, present or not.
template <typename Message>
std::string TypedMsg<Message>::parseMsg() const {
    ObjectWriter writer;
    writer.fieldsOf(static_cast<const Message &>(*this));
    writer.field("type", getType());
    return writer.end();
}

} // namespace kelvane
