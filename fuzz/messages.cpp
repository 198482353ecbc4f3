// A message that was read and written must be read and written in the same way again.

#include "fuzz.h"
#include "log.h"
#include "msg-to-json-parser.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Log::setSink([](const std::string &) {});
    const std::string text(reinterpret_cast<const char *>(data), size);
    const auto message = Msg::parseJson(text);
    if (!message)
        return 0;
    const std::string written = MsgToJsonParser::toJson(message);
    // Texts are written without escapes, so a text that had escapes may not be readable any more. Neither is
    // a number beyond a float, because JSON has no infinity.
    if (text.find('\\') != std::string::npos || written.find("inf") != std::string::npos)
        return 0;
    const auto again = Msg::parseJson(written);
    require(again != nullptr, "written and not readable", written);
    require(MsgToJsonParser::toJson(again) == written, "read and written otherwise", written);
    return 0;
}
