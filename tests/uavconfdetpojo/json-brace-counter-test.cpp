#include "json-brace-counter.h"

#include <gtest/gtest.h>

using Frames = std::vector<std::pair<int, int>>;

TEST(JsonBraceCounter, FindsTheSameObjectsHoweverTheStreamIsCut) {
    const std::pair<std::string, Frames> rows[] = {
        {"{\"a\":\"}\"}", {{0, 8}}},
        {"{\"a\":\"\\\"\"} \"}", {{0, 12}}},
        {"}}{\"a\":{\"b\":{}}}[{}]", {{2, 15}, {17, 18}}},
        {"\"{}\"{}\"}{", {{4, 5}}},
        {"{\"a\":1}\n{\"b\":2}\n", {{0, 6}, {8, 14}}},
    };
    for (const auto &[text, frames] : rows) {
        for (std::size_t cut = 0; cut <= text.size(); ++cut) {
            JsonBraceCounter counter;
            Frames found = counter.write(text.substr(0, cut));
            const Frames rest = counter.write(text.substr(cut));
            found.insert(found.end(), rest.begin(), rest.end());
            EXPECT_EQ(found, frames) << text << " cut at " << cut;
        }
    }
}

TEST(JsonBraceCounter, PositionsFollowWhatWasTakenAway) {
    JsonBraceCounter counter;
    counter.removeByResult({});
    counter.removeByResult(counter.write("{} {}\n{"));
    EXPECT_EQ(counter.write("}"), (Frames{{1, 2}}));
    counter.removeStartBytes(1);
    EXPECT_EQ(counter.write("{}\"{"), (Frames{{2, 3}}));
    counter.reset();
    EXPECT_EQ(counter.write("{}"), (Frames{{0, 1}}));
}
