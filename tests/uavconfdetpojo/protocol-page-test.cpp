#include "messages.h"

namespace {

/// The objects in the JSON blocks of docs/protocol.md, byte for byte.
std::vector<std::string> examples() {
    std::vector<std::string> objects;
    std::ifstream page(DOCS_DIR "/protocol.md");
    bool inside = false;
    for (std::string line; std::getline(page, line);)
        if (line.rfind("```", 0) == 0)
            inside = line == "```json";
        else if (inside && line == "{" &&
                 (objects.empty() || objects.back().substr(objects.back().size() - 2) == "\n}"))
            objects.push_back(line);
        else if (inside)
            objects.back() += '\n' + line;
    return objects;
}

void expectPageAndLibraryAgree() {
    std::set<MsgTypeEnum> types;
    for (const std::string &example : examples()) {
        const std::shared_ptr<Msg> msg = Msg::parseJson(example);
        ASSERT_NE(msg, nullptr) << example;
        EXPECT_EQ(MsgToJsonParser::toJson(msg), example);
        types.insert(msg->getType());
    }
    EXPECT_EQ(types.size(), MsgType::values().size()) << "every type has an example";
}

} // namespace

TEST(ProtocolPage, ShowsWhatTheLibraryReadsAndWritesInEveryLocale) {
    expectPageAndLibraryAgree();
    for (const char *name : {"de_DE.UTF-8", "ru_RU.UTF-8"}) {
        const CommaLocale locale(name);
        expectPageAndLibraryAgree();
    }
}
