// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuShapes.h"
#include "tests/platform/lumora/io/SceneReading.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint32_t HAS_CHILDREN = 2;
constexpr std::uint32_t ONE_AND_A_HALF = 0x3FC00000;
constexpr std::uint32_t NOT_A_NUMBER = 0x7FC00000;

BinaryScene object(const char* type, std::uint32_t flags, const char* name, std::uint32_t fields,
                   const char* version = "2.0") {
    return BinaryScene(version).text(type).number(flags).text(name).number(fields);
}

std::string faultOf(const BinaryScene& scene) {
    const Reading reading = readScene(scene.bytes());
    if (reading.root || reading.errors.size() != 1)
        return reading.getFault();
    return std::to_string(reading.errors[0].offset) + ": " + reading.errors[0].text.str();
}

TEST(BinaryFile, fieldOfAnObject_isRead) {
    const Reading reading =
        readScene(object("Cube", 0, "A", 1).text("width").number(0).number(ONE_AND_A_HALF).bytes());
    ASSERT_EQ(reading.getFault(), "it was read");
    const auto& cube = dynamic_cast<LuCube&>(*reading.root->getChild(0));
    EXPECT_EQ(cube.width.getValue(), 1.5F);
    EXPECT_EQ(cube.getName(), LvName("A"));
}

TEST(BinaryFile, groupWithoutTheFlag_hasNoCount) {
    const Reading reading =
        readScene(object("Separator", 0, "", 0).text("Cube").number(0).text("").number(0).bytes());
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_EQ(reading.root->getNumChildren(), 2);
}

TEST(BinaryFile, versionOne_endsChildrenWithMinusOne) {
    const auto group = [](const char* version) {
        return object("Separator", HAS_CHILDREN, "", 0, version).number(0);
    };
    EXPECT_EQ(faultOf(group("1.0").number(0xFFFFFFFF)), "it was read");
    EXPECT_EQ(faultOf(group("1.0").number(5)), "52: found 5, expected -1 after the children");
    EXPECT_EQ(faultOf(group("1.0")), "52: the file ends within a value");
    EXPECT_EQ(faultOf(group("2.0")), "it was read");
}

TEST(BinaryFile, use_givesTheSameNodeAgain) {
    const Reading reading = readScene(object("Cube", 0, "A", 0).text("USE").text("A").bytes());
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_EQ(reading.root->getChild(0), reading.root->getChild(1));
}

TEST(BinaryFile, faults_areReportedWithTheirPlace) {
    EXPECT_EQ(faultOf(object("Cub", 0, "", 0)),
              "24: found the type \"Cub\", expected a type of Node; is the type \"Cube\" meant?");
    EXPECT_EQ(faultOf(object("Cube", 0, "", 1).text("widht").number(0).number(0)),
              "44: found \"widht\", expected a field of Cube; is the field \"width\" meant?");
    EXPECT_EQ(faultOf(object("Cube", 0, "", 1).text("width").number(0).number(NOT_A_NUMBER)),
              "56: found a number that is not finite");
    EXPECT_EQ(faultOf(object("Cube", 5, "", 0)), "28: found the flags 5, expected 0 or 2");
    EXPECT_EQ(faultOf(object("Cube", HAS_CHILDREN, "", 0).number(0)),
              "36: found children, but a Cube has none");
    EXPECT_EQ(faultOf(BinaryScene().text("USE").text("B")), "32: USE of \"B\", which no DEF before it names");
    EXPECT_EQ(faultOf(object("Separator", HAS_CHILDREN, "A", 0).number(1).text("USE").text("A")),
              "68: USE of \"A\" within its own definition");
    EXPECT_EQ(faultOf(object("Separator", HAS_CHILDREN, "", 0).number(1).text("")),
              "56: found an empty place, expected child 1 of 1");
    EXPECT_EQ(faultOf(BinaryScene().text("A\xFF")), "25: found the byte 0xFF, expected UTF-8");
    EXPECT_EQ(faultOf(BinaryScene().text(std::string_view("A\0B", 3))), "25: found the byte 0x00 in a text");
}

TEST(BinaryFile, countsBeyondTheFile_costNothing) {
    EXPECT_EQ(faultOf(BinaryScene().number(0x7FFFFFFF)),
              "20: found a text of 2147483647 bytes where 0 bytes are left");
    EXPECT_EQ(faultOf(BinaryScene().number(0x80000000)),
              "20: found a text of -2147483648 bytes where 0 bytes are left");
    EXPECT_EQ(faultOf(object("Cube", 0, "", 0x7FFFFFFF)),
              "36: found a count of 2147483647 where 0 bytes are left");
    EXPECT_EQ(faultOf(object("Separator", HAS_CHILDREN, "", 0).number(0x80000000)),
              "48: found a count of -2147483648 where 0 bytes are left");
    EXPECT_EQ(
        faultOf(object("Coordinate3", 0, "", 1).text("point").number(0).number(1'000'000'000).number(0)),
        "64: found a count of 1000000000 where 4 bytes are left");
    EXPECT_EQ(faultOf(object("Text3", 0, "", 1).text("string").number(0).number(2).text("")),
              "60: found a count of 2 where 4 bytes are left");
}

TEST(BinaryFile, depth_isLimited) {
    BinaryScene scene;
    for (int i = 0; i < 1000; ++i)
        scene.text("Separator").number(HAS_CHILDREN).text("").number(0).number(1);
    EXPECT_NE(faultOf(scene).find("nodes are nested deeper than 256 levels"), std::string::npos);
}

} // namespace
