// SPDX-License-Identifier: MIT
#include "tests/host/Json.h"

#include <gtest/gtest.h>

namespace {

TEST(Json, values_areRead) {
    const auto json = Json::parse(R"( {"a": [1, -2.5, true], "b": {"c": "x\"\\\u000a"}, "d": []} )");
    ASSERT_TRUE(json);
    EXPECT_EQ((*json)["a"][1].number, -2.5);
    EXPECT_TRUE((*json)["a"][2].boolean);
    EXPECT_EQ((*json)["b"]["c"].text, "x\"\\\n");
    EXPECT_EQ((*json)["d"].kind, Json::Kind::LIST);
    EXPECT_EQ((*json)["e"].kind, Json::Kind::NOTHING);
    EXPECT_EQ(json->getKeys(), (std::vector<std::string>{"a", "b", "d"}));
}

TEST(Json, faults_leaveNothing) {
    for (const char* text : {"", "{", "[1,]", "[1 2]", "{\"a\" 1}", "{\"a\": 1, \"a\": 2}", "\"a", "\"\\x\"",
                             "\"\n\"", "\"\\u00\"", "tru", "{} {}", "{a: 1}", "-"})
        EXPECT_FALSE(Json::parse(text)) << text;
}

} // namespace
