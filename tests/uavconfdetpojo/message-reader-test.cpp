#include "message-reader.h"

#include "messages.h"

namespace {

/// A reader with a clock. Its messages and log lines are kept as text.
class Stream {
public:
    /// The types of the messages in a chunk, each followed by a blank.
    std::string take(const std::string &chunk, long long afterMs = 0) {
        nowMs += afterMs;
        reader.write(chunk, nowMs);
        std::string types;
        log = printedBy([&] {
            while (const auto msg = reader.next(nowMs))
                types += MsgType(msg->getType()).name() + " ";
        });
        return types;
    }

    long long nowMs = 1000;
    MessageReader reader{"tag", nowMs};
    std::string log;
};

} // namespace

TEST(MessageReader, FindsTheSameMessagesHoweverTheStreamIsCut) {
    const std::string stream = OK + "\n" + STATE + "\n" + FAIL + "\n";
    const std::size_t okEnd = OK.size(), stateEnd = okEnd + 1 + STATE.size();
    for (std::size_t one = 0; one <= stream.size(); ++one) {
        for (std::size_t two = one; two <= stream.size(); ++two) {
            Stream in;
            const auto cutBehind = [&](std::size_t end) { return one - end <= 1 || two - end <= 1; };
            // The middle one is lost if its text goes into the next object.
            const bool middle = cutBehind(okEnd) || cutBehind(stateEnd);
            std::string messages = in.take(stream.substr(0, one));
            messages += in.take(stream.substr(one, two - one));
            messages += in.take(stream.substr(two));
            EXPECT_EQ(messages, middle ? "OK STATE FAIL " : "OK FAIL ") << one << " " << two;
        }
    }
}

TEST(MessageReader, CountsBracesOutsideOfQuotes) {
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        // chunk, messages, bytes kept
        {R"({"type":"OK","a":"}"})", "OK ", ""},
        {R"({"type":"OK","a":"{"})", "OK ", ""},
        {R"({"type":"OK","a":{"b":{}}})", "OK ", ""},
        {"}}]" + OK, "OK ", ""},
        {R"({"type":"OK","a":"\""})", "", R"({"type":"OK","a":"\""})"}, // a backslash has no meaning
        {R"(" )" + OK, "", R"(" )" + OK},
        {R"("" )" + OK, "OK ", ""},
        {"[1, 2]\n", "", "[1, 2]\n"},
        {OK + "\n{\"type\"", "OK ", OK + "\n{\"type\""},
        {OK + OK, "OK OK ", ""},
        {OK + "\n" + OK, "OK OK ", ""},
        {OK + STATE + FAIL, "OK FAIL ", ""},
    };
    for (const auto &[chunk, messages, kept] : cases) {
        Stream in;
        EXPECT_EQ(in.take(chunk), messages) << chunk;
        EXPECT_EQ(in.reader.bytes(), kept) << chunk;
        EXPECT_EQ(in.reader.isEmpty(), kept.empty()) << chunk;
    }
}

TEST(MessageReader, LogsWhatItCannotRead) {
    Stream in;
    in.take(OK + "\n{");
    EXPECT_EQ(in.take(R"("type":"STATE"} {)"), "");
    EXPECT_EQ(in.log, "[tag] received unknown msg: " + STATE + " {\n");
    EXPECT_EQ(in.take("} noise }" + OK), "OK ");
}

TEST(MessageReader, GivesUpBytesInWhichNoObjectEndsForMoreThanFiveSeconds) {
    Stream in;
    in.take("{", 9000);
    EXPECT_EQ(in.take(R"("type":"OK"}{)", 4000), "OK ") << "the end of an object restarts the time";
    in.take("\n22\n", 1);
    in.take("4", 4999);
    EXPECT_EQ(in.log, "");
    in.take("5", 1);
    EXPECT_EQ(in.log, "[tag] recvBuffer: \n[DEBUG] [tag] |" + OK +
                          "{\n[DEBUG] [tag] |22\n45\n"
                          "[tag] reset recv buffer by LAST_PARSED_TIMEOUT\n[tag] reset all recv buffer\n");
    EXPECT_EQ(in.take(OK), "OK ") << "the counter has restarted, too";
    in.take("{", 6000);
    in.take(R"("type":)", 5000);
    EXPECT_EQ(in.log, "") << "an empty buffer has no age";
    EXPECT_EQ(in.take(R"("OK"})", 6000), "OK ") << "late, but an end";
}

TEST(MessageReader, RecoveryKeepsTheNewestObjectThatBeganOnItsOwnLine) {
    Stream in;
    in.take("{{\"a\":1}\n{\"b\":1");
    in.take("}\n{\"type\":\"OK", 5001);
    EXPECT_EQ(in.reader.bytes(), "{\"type\":\"OK");
    EXPECT_THAT(in.log, HasSubstr("afterRecvBuffer: "));
    in.take(" ", 5000);
    EXPECT_EQ(in.log, "") << "the five seconds restart";
    EXPECT_EQ(in.take("\"}\n"), "") << "OK with a blank is no type";
    in.take("{{");
    in.take("}\n" + STATE, 5001);
    EXPECT_EQ(in.take(FAIL), "FAIL ") << "an object that is complete in the kept text is dropped";
}

TEST(MessageReader, HandsOutWhatHasEndedBeforeAReset) {
    Stream in;
    in.reader.write(OK + "\n" + STATE + "\n", in.nowMs);
    EXPECT_EQ(in.reader.next(in.nowMs)->getType(), MsgTypeEnum::OK);
    in.reader.reset();
    EXPECT_TRUE(in.reader.isEmpty());
    in.reader.write(FAIL, in.nowMs);
    in.reader.reset();
    EXPECT_EQ(in.take(FAIL), "STATE FAIL ") << "of two resets the second drops what came between them";
}

TEST(JsonBraceCounter, PositionsFollowWhatWasTakenAway) {
    JsonBraceCounter counter;
    using Frames = std::vector<std::pair<int, int>>;
    counter.removeByResult({});
    counter.removeByResult(counter.write("{} {}\n{"));
    EXPECT_EQ(counter.write("}"), (Frames{{1, 2}}));
    counter.removeStartBytes(1);
    EXPECT_EQ(counter.write("{}\"{"), (Frames{{2, 3}}));
    counter.reset();
    EXPECT_EQ(counter.write("{}"), (Frames{{0, 1}}));
}
