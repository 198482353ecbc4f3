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
