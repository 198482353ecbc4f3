#pragma once

#include <algorithm>
#include <memory>
#include <string>

/// A text in the written style put on one line, each '|' standing for a line break.
inline std::string wire(std::string text) {
    std::replace(text.begin(), text.end(), '|', '\n');
    return text;
}

/// What a builder has built, in a shared pointer to its own class.
template <typename Builder>
auto share(const Builder &builder) {
    return std::make_shared<decltype(builder.build())>(builder.build());
}

/// The shortest messages of three types, as a device may write them.
inline const std::string OK = R"({"type":"OK"})", STATE = R"({"type":"STATE"})", FAIL = R"({"type":"FAIL"})";
