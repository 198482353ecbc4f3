#include <string>

struct Log {
    static void write(const std::string &tag, const std::string &msg);
};
void Log::write(const std::string &, const std::string &) {}

struct Utils {
    static int getObject(const std::string &text);
};
int Utils::getObject(const std::string &text) {
    Log::write("", text);
    return 42;
}

namespace json11 {
class Json {
public:
    Json();
};
Json::Json() {}
} // namespace json11

int ownNumber() {
    const json11::Json json;
    return Utils::getObject("");
}
