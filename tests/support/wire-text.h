#pragma once

#include <algorithm>
#include <string>

/// A text in the written style put on one line, each '|' standing for a line break.
inline std::string wire(std::string text) {
    std::replace(text.begin(), text.end(), '|', '\n');
    return text;
}

/// The shortest messages of three types, as a device may write them.
inline const std::string OK = R"({"type":"OK"})", STATE = R"({"type":"STATE"})", FAIL = R"({"type":"FAIL"})";
