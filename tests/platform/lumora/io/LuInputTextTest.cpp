// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvFileHelper.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuText3.h"
#include "tests/host/TestHost.h"
#include "tests/platform/lumora/io/SceneReading.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

template <class Node>
const Node& firstOf(const Reading& reading) {
    return dynamic_cast<const Node&>(*reading.root->getChild(0));
}

TEST(TextFile, emptyText_givesAnEmptySeparator) {
    const Reading reading = readScene("");
    ASSERT_TRUE(reading.root);
    EXPECT_EQ(reading.root->getNumChildren(), 0);
}

TEST(TextFile, fieldsAndChildren_areReadInOrder) {
    const Reading reading = readScene("Switch { whichChild 1 Cube { width 3 height .5 } Sphere {} } Cone {}");
    ASSERT_EQ(reading.getFault(), "it was read");
    ASSERT_EQ(reading.root->getNumChildren(), 2);
    const auto& group = firstOf<LuSwitch>(reading);
    EXPECT_EQ(group.whichChild.getValue(), 1);
    EXPECT_FALSE(group.whichChild.isDefault());
    ASSERT_EQ(group.getNumChildren(), 2);
    const auto& cube = dynamic_cast<LuCube&>(*group.getChild(0));
    EXPECT_EQ(cube.width.getValue(), 3);
    EXPECT_EQ(cube.height.getValue(), 0.5F);
    EXPECT_TRUE(cube.depth.isDefault());
}

TEST(TextFile, typeName_mayBeginWithItsPrefix) {
    EXPECT_EQ(readScene("LuCube {}").getFault(), "it was read");
}

TEST(TextFile, comments_endWithTheirLine) {
    const Reading reading = readScene("# one { \" \xFF\nCube { # two\nwidth # three\n7 }#four");
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_EQ(firstOf<LuCube>(reading).width.getValue(), 7);
}

TEST(TextFile, headers_ofBothVersionsAreTaken) {
    for (const char* start :
         {"#Lumora V1.0 ascii\n", "#Lumora V2.0 ascii\r\n", "\xEF\xBB\xBF#Lumora V2.0 ascii\n"})
        EXPECT_EQ(readScene(std::string(start) + "Cube {}").getFault(), "it was read") << start;
}

TEST(TextFile, lists_takeCommasSpacesAndASingleValue) {
    for (const char* list : {"[ 1 0 0, 0 1 0 ]", "[1 0 0 0 1 0]", "[ 1 0 0, 0 1 0, ]"}) {
        const Reading reading = readScene(std::string("Material { diffuseColor ") + list + " }");
        ASSERT_EQ(reading.getFault(), "it was read") << list;
        EXPECT_EQ(firstOf<LuMaterial>(reading).diffuseColor.getNum(), 2);
    }
    const Reading single = readScene("Material { diffuseColor 1 0 0 shininess [] }");
    EXPECT_EQ(firstOf<LuMaterial>(single).diffuseColor.getNum(), 1);
    EXPECT_EQ(firstOf<LuMaterial>(single).shininess.getNum(), 0);
}

TEST(TextFile, escapes_areOnlyQuoteAndBackslash) {
    const Reading reading =
        readScene("Text3 { string [ \"a\\\"b\", \"c\\\\d\", \"e\\nf\", \"g\nh\", \"\\\\\" ] }");
    ASSERT_EQ(reading.getFault(), "it was read");
    const LuMFString& string = firstOf<LuText3>(reading).string;
    ASSERT_EQ(string.getNum(), 5);
    EXPECT_EQ(string[0], "a\"b");
    EXPECT_EQ(string[1], "c\\d");
    EXPECT_EQ(string[2], "e\\nf");
    EXPECT_EQ(string[3], "g\nh");
    EXPECT_EQ(string[4], "\\");
}

TEST(TextFile, booleans_takeWordsAndDigits) {
    const Reading reading =
        readScene("ClipPlane { on FALSE } ClipPlane { on 0 } ClipPlane { on TRUE } ClipPlane { on 1 }");
    ASSERT_EQ(reading.getFault(), "it was read");
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(dynamic_cast<LuClipPlane&>(*reading.root->getChild(i)).on.getValue(), i >= 2) << i;
}

TEST(TextFile, enums_takeNamesAndNumbers) {
    const Reading reading = readScene("PickStyle { style UNPICKABLE } PickStyle { style 77 }");
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_EQ(firstOf<LuPickStyle>(reading).style.getValue(), LuPickStyle::UNPICKABLE);
    EXPECT_EQ(dynamic_cast<LuPickStyle&>(*reading.root->getChild(1)).style.getValue(), 77);
}

TEST(TextFile, tilde_marksAFieldAsIgnored) {
    const Reading reading = readScene("Cube { width 4 ~ height 5 }");
    EXPECT_TRUE(firstOf<LuCube>(reading).width.isIgnored());
    EXPECT_FALSE(firstOf<LuCube>(reading).height.isIgnored());
}

TEST(TextFile, numbers_thatAreTooSmallBecomeZero) {
    const Reading reading = readScene("Cube { width 1e-60 height -1e-9999 depth +2 }");
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_EQ(firstOf<LuCube>(reading).width.getValue(), 0);
    EXPECT_EQ(firstOf<LuCube>(reading).height.getValue(), 0);
    EXPECT_EQ(firstOf<LuCube>(reading).depth.getValue(), 2);
}

TEST(TextFile, use_givesTheSameNodeAgain) {
    const Reading reading =
        readScene("DEF A Cube {} Separator { USE A } DEF \"two words\" Cone {} USE \"two words\"");
    ASSERT_EQ(reading.getFault(), "it was read");
    const auto& group = dynamic_cast<LuSeparator&>(*reading.root->getChild(1));
    EXPECT_EQ(group.getChild(0), reading.root->getChild(0));
    EXPECT_EQ(group.getChild(0)->getName(), LvName("A"));
    EXPECT_EQ(reading.root->getChild(2), reading.root->getChild(3));
}

TEST(TextFile, nameGivenTwice_standsForTheLastNode) {
    const Reading reading = readScene("DEF A Separator { DEF A Cube {} USE A } USE A");
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_TRUE(reading.root->getChild(1)->isOfType(LuCube::getClassTypeId()));
}

TEST(TextFile, namesOfTheWriter_stayWithinTheFile) {
    const Reading reading = readScene("DEF _1 Cube {} USE _1");
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_TRUE(reading.root->getChild(0)->getName().isEmpty());
}

struct Fault {
    const char* name;
    std::string text;
    const char* fault;
};

class TextFault : public testing::TestWithParam<Fault> {};

TEST_P(TextFault, isReportedOnceWithItsPlace) {
    EXPECT_EQ(readScene(GetParam().text).getFault(), GetParam().fault);
}

const Fault s_faults[] = {
    {"missingBrace", "Cube {\n width 3\n",
     "3:1: found the end of the file, expected a field of Cube or \"}\""},
    {"missingBraceOfGroup", "Separator { Cube {}",
     "1:20: found the end of the file, expected a field of Separator or \"}\""},
    {"braceTooMany", "Cube {} }", "1:9: found \"}\", expected a node"},
    {"noBrace", "Cube width 3", "1:6: found \"width\", expected \"{\" after the type of a node"},
    {"unknownType", "Cub {}", "1:1: found \"Cub\", expected a type of Node; is the type \"Cube\" meant?"},
    {"unknownTypeOfChild", "Separator {\n  Cub {}\n}",
     "2:3: found \"Cub\", which is neither a type of Node nor a field of Separator; is the type \"Cube\" "
     "meant?"},
    {"unknownTypeWithoutNearest", "Xylophone {}", "1:1: found \"Xylophone\", expected a type of Node"},
    {"unknownField", "Separator { Cube { widht 3 } }",
     "1:20: found \"widht\", which is neither a field of Cube nor a type of Node; is the field \"width\" "
     "meant?"},
    {"unknownFieldOfGroup", "Switch { whichChid 3 }",
     "1:10: found \"whichChid\", which is neither a field of Switch nor a type of Node; is the field "
     "\"whichChild\" meant?"},
    {"numberTooMany", "Translation { translation 1 2 3 4 }",
     "1:33: found \"4\", expected a field of Translation or \"}\""},
    {"numberTooFew", "Translation { translation 1 2 }", "1:31: found \"}\", expected a number"},
    {"childOfALeaf", "Cube { Sphere {} }", "1:8: found \"Sphere\", but a Cube has no children"},
    {"abstractType", "Shape {}",
     "1:1: the type Shape is abstract: there are no nodes of it, only of types derived from it"},
    {"undefinedUse", "DEF Handle Cube {} USE Handel",
     "1:24: USE of \"Handel\", which no DEF before it names; is the name \"Handle\" meant?"},
    {"useWithinItself", "DEF A Separator { Separator { USE A } }",
     "1:35: USE of \"A\" within its own definition"},
    {"useWithoutName", "USE {", "1:5: found \"{\", expected a name after USE"},
    {"defWithoutName", "DEF", "1:4: found the end of the file, expected a name after DEF"},
    {"defWithoutType", "DEF A {", "1:7: found \"{\", expected a type of Node"},
    {"textWithoutEnd", "Text3 { string \"a }\n\n", "1:16: the text that begins here has no closing quote"},
    {"textWithoutQuotes", "Text3 { string a }", "1:16: found \"a\", expected a text in quotes"},
    {"listWithoutEnd", "Text3 { string [ \"a\" }", "1:22: found \"}\", expected a text in quotes"},
    {"wholeNumberWithFraction", "Switch { whichChild 1.5 }", "1:21: found \"1.5\", expected a whole number"},
    {"wholeNumberTooGreat", "Switch { whichChild 2147483648 }",
     "1:21: the number \"2147483648\" is out of range: expected -2147483648 to 2147483647"},
    {"numberTooGreat", "Cube { width 1e39 }", "1:14: the number \"1e39\" is out of range"},
    {"numberFarTooGreat", "Cube { width -1e9999 }", "1:14: the number \"-1e9999\" is out of range"},
    {"notANumber", "Cube { width nan }", "1:14: found \"nan\", expected a number"},
    {"endlessNumber", "Cube { width inf }", "1:14: found \"inf\", expected a number"},
    {"word", "Cube { width 3x }", "1:14: found \"3x\", expected a number"},
    {"noBoolean", "ClipPlane { on true }", "1:16: found \"true\", expected TRUE or FALSE"},
    {"noEnum", "PickStyle { style BOUNDINGBOX }",
     "1:19: found \"BOUNDINGBOX\", expected one of SHAPE, BOUNDING_BOX, UNPICKABLE; is the name "
     "\"BOUNDING_BOX\" meant?"},
    {"planeWithoutDirection", "ClipPlane { plane 0 0 0 1 }",
     "1:25: found a normal of length 0, expected a direction of length 1"},
    {"rotationByAxisAndAngle", "Rotation { rotation 0 0 1 1.57 }",
     "1:27: found a rotation of length 1.86142, expected a unit quaternion: x y z w"},
    {"invalidUtf8InText", "Text3 { string \"\xC3\xA4 \xC3\" }", "1:19: found the byte 0xC3, expected UTF-8"},
    {"zeroByteInText", std::string("Text3 { string \"a\0b\" }", 22), "1:18: found the byte 0x00 in a text"},
    {"zeroByteBetweenWords", std::string("Cube { \0 }", 10),
     "1:8: found the byte 0x00, expected a field of Cube or \"}\""},
    {"invalidUtf8InName", "DEF A\xFF Cube {}", "1:6: found the byte 0xFF, expected UTF-8"},
    {"columnsCountCharacters", "Text3 { string \"\xE2\x82\xAC\xE2\x82\xAC\" strng 3 }",
     "1:21: found \"strng\", which is neither a field of Text3 nor a type of Node; is the field \"string\" "
     "meant?"},
    {"unknownVersion", "#Lumora V3.0 ascii\nCube {}",
     "1:1: found \"#Lumora V3.0 ascii\", expected version 1.0 or 2.0 and \"ascii\" or \"binary\""},
};

INSTANTIATE_TEST_SUITE_P(All, TextFault, testing::ValuesIn(s_faults),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(TextFile, fault_goesToTheErrorChannelWithoutAHandler) {
    LuDB::init();
    const std::string text = "Cube {\n width }";
    LuInput in;
    in.setBuffer(text.data(), text.size());
    expectMessage("LuInput", "text in memory:2:8: error: found \"}\", expected a number");
    EXPECT_FALSE(LuDB::readAll(&in));
    LuDB::finish();
}

class SearchDirectories : public testing::Test {
protected:
    void SetUp() override {
        LuDB::init();
        LuInput::clearDirectories();
        m_folder = getTestOutputFolder() + "/searchDirectories";
        std::filesystem::create_directories(m_folder + "/first");
        std::filesystem::create_directories(m_folder + "/second");
        write("first/a.lum", "#Lumora V2.0 ascii\nCube {}");
        write("second/a.lum", "#Lumora V2.0 ascii\nCone {}");
        write("second/b.lum", "Cone {}");
    }
    void TearDown() override {
        LuInput::clearDirectories();
        LuDB::finish();
    }
    void write(const std::string& name, const std::string& text) const {
        std::ofstream(m_folder + "/" + name, std::ios::binary) << text;
    }
    std::string m_folder;
};

TEST_F(SearchDirectories, relativeName_isTakenFromTheFirstThatHasIt) {
    LuInput::addDirectoryLast(LvString(m_folder + "/second"));
    LuInput::addDirectoryFirst(LvString(m_folder + "/first/"));
    LuInput in;
    ASSERT_TRUE(in.openFile("a.lum"));
    EXPECT_EQ(in.getFileName(), LvString(m_folder + "/first/a.lum"));
    const auto root = hold(LuDB::readAll(&in));
    EXPECT_TRUE(root->getChild(0)->isOfType(LuCube::getClassTypeId()));
}

TEST_F(SearchDirectories, order_isThatOfAdding) {
    LuInput::addDirectoryLast("b");
    LuInput::addDirectoryLast("c");
    LuInput::addDirectoryFirst("a");
    ASSERT_EQ(LuInput::getDirectories().getLength(), 3);
    EXPECT_EQ(*LuInput::getDirectories()[0], "a");
    EXPECT_EQ(*LuInput::getDirectories()[1], "b");
    EXPECT_EQ(*LuInput::getDirectories()[2], "c");
}

TEST_F(SearchDirectories, missingFile_isReportedUnlessItMayBeMissing) {
    LuInput in;
    EXPECT_FALSE(in.openFile("nowhere.lum", true));
    expectMessageContaining("LuInput::openFile", "nowhere.lum: error: the file can't be read: ");
    EXPECT_FALSE(in.openFile("nowhere.lum"));
    EXPECT_FALSE(LuDB::readAll(&in));
}

TEST_F(SearchDirectories, fileWithoutFirstLine_isRefused) {
    LuInput in;
    const std::string path = m_folder + "/second/b.lum";
    expectMessage("LuInput", path + ":1:1: error: the first line is not \"#Lumora V2.0 ascii\" or "
                                    "\"#Lumora V2.0 binary\": this is no scene file");
    EXPECT_FALSE(in.openFile(LvString(path)));
}

} // namespace
