// A value that was written must be read as the same value again.

#include "fuzz.h"

#include <json11.hpp>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string text(reinterpret_cast<const char *>(data), size);
    std::string error;
    const auto value = json11::Json::parse(text, error);
    if (!error.empty())
        return 0;
    // The first writing may change a value that JSON can't express: a number beyond a double, a zero's sign.
    const auto plain = json11::Json::parse(value.dump(), error);
    require(error.empty(), "written and not readable", value.dump());
    const std::string written = plain.dump();
    const auto again = json11::Json::parse(written, error);
    require(error.empty() && again == plain, "read as another value", written);
    require(again.dump() == written, "written otherwise", written);
    return 0;
}
