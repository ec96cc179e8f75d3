// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuPath.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/host/TestHost.h"
#include "tests/platform/lumora/io/SceneReading.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

const char* const s_scenes[] = {
    "",
    "Cube {}",
    "DEF A Cube { width 3 ~ } USE A",
    "Separator { Separator {} Group { Cube {} } }",
    "DEF \"two words\" Switch { whichChild -3 DEF x.1-b Cube {} }",
    "Text3 { string [ \"a\\\"b\", \"c\\\\d\", \"e\\nf\", \"g\nh\", \"\\\\\", \"\\\\\\\\n\", \"\" ] parts ALL "
    "justification 9 }",
    "Coordinate3 { point [ 0.1 1e-45 3.4028235e38, -0 1 2 ] } Font { name \"Some Font\" size 0.333333343 }",
    "Material { diffuseColor [ 1 0 0, 0 1 0, 0 0 1, 1 1 1, 0 0 0 ] shininess [] transparency 0.5 }",
    "ClipPlane { plane 3 4 0 5 on FALSE } PickStyle { style UNPICKABLE }",
    "Rotation { rotation 0.6 0 0 0.8 } MatrixTransform { matrix 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 }",
    "Group { DEF _7 Cube {} USE _7 } Group { DEF A Cone {} } DEF A Sphere {} USE A",
};

class RoundTrip : public testing::TestWithParam<bool> {
protected:
    void SetUp() override { LuDB::init(); }
    void TearDown() override { LuDB::finish(); }
};

TEST_P(RoundTrip, giveAnEqualTreeAndTheSameBytes) {
    for (const char* text : s_scenes) {
        const Reading first = readScene(text);
        ASSERT_EQ(first.getFault(), "it was read") << text;
        const std::string written = writeScene(first.root.get(), GetParam());
        const Reading second = readScene(written);
        ASSERT_EQ(second.getFault(), "it was read") << written;
        EXPECT_TRUE(first.root->isEqual(*second.root)) << written;
        EXPECT_EQ(writeScene(second.root.get(), GetParam()), written);
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, RoundTrip, testing::Bool(),
                         [](const auto& row) { return row.param ? "binary" : "text"; });

class Output : public testing::Test {
protected:
    void SetUp() override { LuDB::init(); }
    void TearDown() override { LuDB::finish(); }
};

std::string rewrite(const char* text) { return writeScene(readScene(text).root.get(), false); }

TEST_F(Output, text_isIndented) {
    EXPECT_EQ(rewrite("DEF A Switch { whichChild 0 Cube { width 3 } Cone {} }"), "#Lumora V2.0 ascii\n"
                                                                                 "\n"
                                                                                 "DEF A Switch {\n"
                                                                                 "    whichChild 0\n"
                                                                                 "    Cube {\n"
                                                                                 "        width 3\n"
                                                                                 "    }\n"
                                                                                 "    Cone {}\n"
                                                                                 "}\n");
}

TEST_F(Output, sharedNodeWithoutAName_getsOneOfTheFile) {
    EXPECT_EQ(rewrite("Group { DEF _5 Cube {} USE _5 DEF _9 Cone {} USE _9 USE _5 }"), "#Lumora V2.0 ascii\n"
                                                                                       "\n"
                                                                                       "Group {\n"
                                                                                       "    DEF _1 Cube {}\n"
                                                                                       "    USE _1\n"
                                                                                       "    DEF _2 Cone {}\n"
                                                                                       "    USE _2\n"
                                                                                       "    USE _1\n"
                                                                                       "}\n");
}

TEST_F(Output, sharedNodeWithANameOfTwo_getsOneOfItsOwn) {
    const auto group = hold(new LuGroup);
    LuNode* const shared = new LuCube;
    LuNode* const other = new LuCone;
    shared->setName("A");
    other->setName("A");
    for (LuNode* child : {shared, other, shared})
        group->addChild(child);
    const auto top = hold(new LuGroup);
    top->addChild(group.get());
    EXPECT_EQ(writeScene(top.get(), false), "#Lumora V2.0 ascii\n\nGroup {\n"
                                            "    DEF A_1 Cube {}\n    DEF A Cone {}\n    USE A_1\n}\n");
}

TEST_F(Output, floats_areWrittenInTheirShortestForm) {
    LuOutput out;
    out.write(0.1F);
    out.writeRaw(" ");
    out.write(16777216.0F);
    out.writeRaw(" ");
    out.write(std::numeric_limits<float>::infinity());
    out.writeRaw(" ");
    out.write(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(out.getBuffer(), "0.1 16777216 3.4028235e+38 0");
}

TEST_F(Output, textThatNoReaderTakes_isMended) {
    LuOutput out;
    out.write(std::string_view("a\xFF\0b", 4));
    EXPECT_EQ(out.getBuffer(), "\"a\xEF\xBF\xBD"
                               "b\"");
}

TEST_F(Output, path_leavesOutWhatComesAfterIt) {
    const Reading reading = readScene("Group { Translation {} Separator { Cone {} } Cube {} Sphere {} }");
    auto* const group = static_cast<LuGroup*>(reading.root->getChild(0));
    LuPath path(group);
    path.append(group->getChild(2), 2);
    for (const bool isBinary : {false, true}) {
        LuOutput out;
        out.setBinary(isBinary);
        LuWriteAction action(&out);
        action.apply(path);
        const Reading back = readScene(out.getBuffer());
        ASSERT_EQ(back.getFault(), "it was read");
        const auto& written = dynamic_cast<LuGroup&>(*back.root->getChild(0));
        ASSERT_EQ(written.getNumChildren(), 2);
        EXPECT_TRUE(written.getChild(0)->isOfType(LuTranslation::getClassTypeId()));
        EXPECT_TRUE(written.getChild(1)->isOfType(LuCube::getClassTypeId()));
    }
}

TEST_F(Output, nodeWithoutAReference_outlivesItsWriting) {
    auto* const cube = new LuCube;
    LuWriteAction().apply(cube);
    EXPECT_EQ(cube->getRefCount(), 0);
    hold(cube);
}

TEST_F(Output, file_canBeReadAgain) {
    const LvString path(getTestOutputFolder() + "/LuOutputTest.lum");
    const Reading reading = readScene("DEF A Cube { width 3 }");
    LuWriteAction action;
    ASSERT_TRUE(action.getOutput()->openFile(path));
    action.apply(reading.root->getChild(0));
    ASSERT_TRUE(action.getOutput()->closeFile());
    LuInput in;
    ASSERT_TRUE(in.openFile(path));
    const auto root = hold(LuDB::readAll(&in));
    ASSERT_TRUE(root);
    EXPECT_TRUE(root->getChild(0)->isEqual(*reading.root->getChild(0)));
}

TEST_F(Output, fileThatCantBeWritten_isReported) {
    LuOutput out;
    expectMessageContaining("LuOutput::openFile", "/nowhere/at/all.lum: can't be written: ");
    EXPECT_FALSE(out.openFile(LvString(getTestOutputFolder() + "/nowhere/at/all.lum")));
}

TEST_F(Output, valueAsText_isThatOfAFile) {
    LuText3 text;
    text.ref();
    EXPECT_TRUE(text.string.setText("[ \"a\", \"b\" ]"));
    EXPECT_EQ(text.string.getText(), "[ \"a\", \"b\" ]");
    EXPECT_TRUE(text.parts.setText("ALL"));
    EXPECT_EQ(text.parts.getText(), "ALL");
    expectMessage("LuInput", "text in memory:1:3: error: found \"4\", expected the end of the value");
    EXPECT_FALSE(text.spacing.setText("3 4"));
    EXPECT_EQ(text.spacing.getValue(), 1);
}

TEST_F(Output, fieldsAsText_areSet) {
    LuCube cube;
    cube.ref();
    EXPECT_TRUE(cube.set("width 3 height 4"));
    EXPECT_EQ(cube.height.getValue(), 4);
    expectMessage("LuInput",
                  "text in memory:1:1: error: found \"hight\", expected a field of Cube; is the field "
                  "\"height\" meant?");
    EXPECT_FALSE(cube.set("hight 4"));
}

} // namespace
