#pragma once

#include <algorithm>
#include <string>

/// The text with a line break in place of each '|'. So a text in the written style fits on one line.
inline std::string wire(std::string text) {
    std::replace(text.begin(), text.end(), '|', '\n');
    return text;
}

/// The shortest messages of three types.
inline const std::string OK = R"({"type":"OK"})", STATE = R"({"type":"STATE"})", FAIL = R"({"type":"FAIL"})";
