// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuShapes.h"
#include "tests/platform/lumora/io/SceneReading.h"

#include <gtest/gtest.h>

namespace {

const char* const s_scene = "#Lumora V2.0 ascii\nDEF A Separator { whatever \"x\" }";

const std::string s_text = "#Lumora V2.0 ascii\n"
                           "DEF Top Switch { whichChild -3 # all\n"
                           "  DEF C Cube { width 2.5 ~ } USE C\n"
                           "  Text3 { string [ \"\xC3\xA4\\\"\", \"b\" ] parts ALL }\n"
                           "  Separator { ClipPlane { plane 1 0 0 3 on FALSE } } }";

std::string repeat(std::string_view text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

TEST(ReadLimits, textCutAnywhere_isReportedOnce) {
    ASSERT_EQ(readScene(s_text).getFault(), "it was read");
    const std::size_t firstNode = s_text.find("DEF");
    for (std::size_t length = firstNode + 1; length < s_text.size(); ++length) {
        const Reading reading = readScene(std::string_view(s_text).substr(0, length));
        EXPECT_FALSE(reading.root) << length;
        EXPECT_EQ(reading.errors.size(), 1u) << length;
    }
}

TEST(ReadLimits, binaryCutAnywhere_isReportedOnce) {
    const std::string bytes = writeScene(readScene(s_text).root.get(), true);
    ASSERT_EQ(readScene(bytes).getFault(), "it was read");
    const std::size_t firstNode = bytes.find('\n') + 1;
    for (std::size_t length = firstNode + 1; length < bytes.size(); ++length) {
        const Reading reading = readScene(std::string_view(bytes).substr(0, length));
        EXPECT_FALSE(reading.root) << length;
        EXPECT_EQ(reading.errors.size(), 1u) << length;
    }
}

TEST(ReadLimits, depth_endsAt256) {
    const auto nested = [](int depth) { return repeat("Separator {", depth) + repeat("}", depth); };
    EXPECT_EQ(readScene(nested(256)).getFault(), "it was read");
    EXPECT_EQ(readScene(nested(257)).getFault(), "1:2817: nodes are nested deeper than 256 levels");
}

TEST(ReadLimits, millionLevels_areRefused) {
    EXPECT_EQ(readScene(repeat("Separator {", 1'000'000)).getFault(),
              "1:2817: nodes are nested deeper than 256 levels");
}

TEST(ReadLimits, depthMadeByUse_counts) {
    std::string text = "DEF A Separator {" + repeat("Separator {", 199) + repeat("}", 200);
    EXPECT_EQ(readScene(text + repeat("Separator {", 56) + "USE A" + repeat("}", 56)).getFault(),
              "it was read");
    const Reading reading = readScene(text + "\n" + repeat("Separator {", 57) + "USE A" + repeat("}", 57));
    EXPECT_EQ(reading.getFault(), "2:632: nodes are nested deeper than 256 levels by the USE of \"A\"");
}

TEST(ReadLimits, nodesMadeByUse_count) {
    std::string text = "DEF N0 Cube {}\n";
    for (int i = 1; i <= 30; ++i) {
        const std::string before = "USE N" + std::to_string(i - 1) + " ";
        text += "DEF N" + std::to_string(i) + " Group { " + before + before + "}\n";
    }
    EXPECT_EQ(readScene(text).getFault(),
              "22:29: the file holds more than 4000000 nodes, when each USE is counted in full");
}

TEST(ReadLimits, veryLongWord_isCutInTheMessage) {
    const std::string fault = readScene(std::string(100'000, 'x') + " {}").getFault();
    EXPECT_EQ(fault, "1:1: found \"" + std::string(60, 'x') + "...\", expected a type of Node");
}

TEST(ReadLimits, failedFile_leavesNoNames) {
    EXPECT_EQ(LuBase::getNamed("A").size(), 0u);
    EXPECT_FALSE(readScene(s_scene).root);
    EXPECT_EQ(LuBase::getNamed("A").size(), 0u);
}

TEST(ReadLimits, unknownWords_areNotKept) {
    readScene("Separator { unheardOfWord 3 }");
    EXPECT_TRUE(LvName::findExisting("unheardOfWord").isEmpty());
}

} // namespace
