#include "json11.hpp"

#include "testing.h"

using json11::Json;

namespace {

std::string fromHex(const std::string &hex) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    return bytes;
}

/// Checks the table. Its columns: name, text, accepted or not, result of dump().
void expectTable() {
    const std::set<std::string> mayBeRefused = {"lone_hi", "hi_then_char", "hi_hi_lo", "huge"};
    for (const auto &row : rowsOf(TEST_DATA_DIR "/json11-behaviour.tsv")) {
        const std::string &name = row[0], &text = row[1], &accepted = row[2], &dump = row[3];
        std::string err;
        const Json json = Json::parse(text == "-" ? "" : fromHex(text), err);
        EXPECT_EQ(err.empty(), accepted == "1" && !(mayBeRefused.count(name) && !err.empty())) << name << err;
        EXPECT_EQ(json.dump(), err.empty() ? fromHex(dump) : "null") << name;
    }
}

} // namespace

TEST(Json11, AgreesWithTheTableInEveryLocale) {
    expectTable();
    const CommaLocale comma;
    expectTable();
}

TEST(Json11, Limits) {
    std::string err;
    EXPECT_TRUE(Json::parse(std::string(200, '[') + "1" + std::string(200, ']'), err).is_array());
    EXPECT_TRUE(Json::parse(std::string(201, '[') + "1" + std::string(201, ']'), err).is_null());
    EXPECT_NE(err, "");
    // Numbers in range in unusual forms, and one beyond the range.
    err.clear();
    const std::string longOne = "1" + std::string(400, '0') + "e-300";
    EXPECT_EQ(Json::parse("[0e999, -0e999, " + longOne + ", \"0e999\\\"\"]", err).dump(),
              "[0, -0, " + Json(1e100).dump() + ", \"0e999\\\"\"]");
    EXPECT_EQ(err, "");
    for (const char *text : {"[1e999, 0e999]", "[01, 0e999]", "[0e999, 1.]"}) {
        err.clear();
        EXPECT_TRUE(Json::parse(text, err).is_null() && !err.empty()) << text;
    }
    EXPECT_EQ(Json(std::numeric_limits<double>::infinity()).dump(), "null");
    EXPECT_EQ(Json(std::nan("")).int_value(), 0);
    const std::pair<double, int> ints[] = {{-3.9, -3}, {2147483648, 2147483647}, {-1e300, -2147483647 - 1}};
    for (const auto &[number, value] : ints)
        EXPECT_EQ(Json(number).int_value(), value) << number;
}

TEST(Json11Threads, OfEqualKeysTheLastCountsForEveryReaderAtOnce) {
    for (const int others : {2, 40}) { // few members are looked through, many have a map
        std::string text = R"({"a": 1, "b": {"c": 1, "c": 2})", err;
        for (int i = 0; i < others; ++i)
            text += ", \"" + std::to_string(i) + "\": 0";
        const Json json = Json::parse(text + R"(, "a": 3})", err);
        const auto read = [&] {
            EXPECT_EQ(json["a"], 3);
            EXPECT_EQ(json.object_items().at("a"), 3);
            EXPECT_EQ(json["b"].dump(), R"({"c": 2})");
        };
        const auto other = meanwhile(read);
        read();
    }
}

TEST(Json11, WrongTypesReadAsEmptyValues) {
    for (const Json &json :
         {Json(), Json(1.5), Json(true), Json("x"), Json(Json::array{1}), Json(Json::object{{"a", 1}})}) {
        SCOPED_TRACE(json.dump());
        EXPECT_EQ(json.int_value() != 0, json.is_number());
        EXPECT_EQ(json.bool_value(), json.is_bool());
        EXPECT_EQ(json.string_value() == "x", json.is_string());
        EXPECT_EQ(json[0] == 1, json.is_array());
        EXPECT_EQ(json["a"] == 1, json.is_object());
        EXPECT_TRUE(json[1].is_null() && json["b"].is_null());
    }
}

TEST(Json11, ValuesHaveAnOrderAndTextsMayHaveComments) {
    std::string err;
    const auto ascending =
        Json::parse(R"([null, 1, 2, false, true, "a", "b", [1], [2], {"a":1}, {"b":1}])", err).array_items();
    ASSERT_EQ(ascending.size(), 11U);
    for (std::size_t i = 0; i < ascending.size(); ++i)
        for (std::size_t j = 0; j < ascending.size(); ++j) {
            EXPECT_EQ(ascending[i] < ascending[j], i < j) << i << ' ' << j;
            EXPECT_EQ(ascending[i] == ascending[j], i == j) << i << ' ' << j;
        }
    EXPECT_EQ(Json::parse("/* 1 */ [2] // 3", err, json11::COMMENTS).dump() + err, "[2]");
    Json::parse(static_cast<const char *>(nullptr), err);
    EXPECT_EQ(err, "null input");
}
