#pragma once

#include "field-io.h"

#include <string>

/// Puts an object together in the written style: each present key on its own line, nothing indented, no byte
/// behind the closing brace.
class ObjectWriter {
public:
    template <typename T>
    void field(const char *key, const T &value) {
        text += first ? "\"" : ",\n\"";
        first = false;
        text += key;
        text += "\" : ";
        FieldIo<T>::write(text, value);
    }

    std::string end() const { return text + "\n}"; }

private:
    std::string text = "{\n";
    bool first = true;
};
