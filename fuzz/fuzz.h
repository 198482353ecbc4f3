#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

/// libFuzzer calls this with bytes that it makes up. Anything that ends the process is a fault.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Ends the process if a condition that must hold for any bytes does not hold.
inline void require(bool holds, const char *what, const std::string &text) {
    if (holds)
        return;
    std::fprintf(stderr, "%s: %s\n", what, text.c_str());
    std::abort();
}
