#include <cmath>
#include <fstream>
#include <limits>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "comma-locale.h"
#include "json11.hpp"

using json11::Json;

namespace {

std::string fromHex(const std::string &hex) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    }
    return bytes;
}

Json parsed(const std::string &text) {
    std::string err;
    Json json = Json::parse(text, err);
    EXPECT_EQ(err, "") << text;
    return json;
}

/// Rows of name, text, whether it is accepted, and what dump() makes of it.
void expectTable() {
    const std::set<std::string> mayBeRefused = {"lone_hi", "hi_then_char", "hi_hi_lo", "huge"};
    std::ifstream file(TEST_DATA_DIR "/json11-behaviour.tsv");
    int rows = 0;
    for (std::string line, name, text, accepted; std::getline(file, line);) {
        if (line[0] == '#') {
            continue;
        }
        std::string dump, err;
        std::istringstream(line) >> name >> text >> accepted >> dump;
        const Json json = Json::parse(text == "-" ? "" : fromHex(text), err);
        EXPECT_EQ(err.empty(), accepted == "1" && !(mayBeRefused.count(name) && !err.empty())) << name << err;
        EXPECT_EQ(json.dump(), err.empty() ? fromHex(dump) : "null") << name;
        ++rows;
    }
    EXPECT_GT(rows, 60);
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
    EXPECT_EQ(parsed("[1e-400, -1e-400, 1" + std::string(300, '0') + "e300]").dump(), "[0, -0, null]");
    EXPECT_EQ(Json(std::numeric_limits<double>::infinity()).dump(), "null");
    EXPECT_EQ(Json(std::nan("")).int_value(), 0);
    const std::pair<const char *, int> ints[] = {{"3.9", 3},
                                                 {"-3.9", -3},
                                                 {"2147483648", 2147483647},
                                                 {"-1e300", -2147483647 - 1},
                                                 {"1e9", 1000000000}};
    for (const auto &[text, value] : ints) {
        EXPECT_EQ(parsed(text).int_value(), value) << text;
    }
}

TEST(Json11, WrongTypesReadAsEmptyValues) {
    for (const char *text : {"null", "1", "1.5", "true", "\"x\"", "[1]", "{\"a\":1}"}) {
        const Json json = parsed(text);
        EXPECT_EQ(json.is_null(), json == nullptr) << text;
        EXPECT_EQ(json.number_value() != 0, json.is_number()) << text;
        EXPECT_EQ(json.int_value() != 0, json.is_number()) << text;
        EXPECT_EQ(json.bool_value(), json.is_bool()) << text;
        EXPECT_EQ(json.string_value() == "x", json.is_string()) << text;
        EXPECT_EQ(json[0] == 1, json.is_array()) << text;
        EXPECT_EQ(json["a"] == 1, json.is_object()) << text;
        EXPECT_TRUE(json[1].is_null() && json["b"].is_null()) << text;
    }
}

TEST(Json11, IsMadeFromContainersAndCompares) {
    const std::map<std::string, std::vector<double>> levels = {{"a", {1, 2.5}}, {"b", {}}};
    EXPECT_EQ(Json(levels), parsed("{\"b\": [], \"a\": [1, 2.5]}"));
    EXPECT_EQ(Json(Json::object{{"s", "t"}, {"n", nullptr}}).dump(), "{\"n\": null, \"s\": \"t\"}");
    EXPECT_EQ(Json(1), Json(1.0));
    EXPECT_NE(Json(0), Json(false));
    EXPECT_LT(Json(Json::array{1, "a"}), Json(Json::array{1, "b"}));
}
