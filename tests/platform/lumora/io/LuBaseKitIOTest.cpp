// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuDragger.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "tests/platform/lumora/io/SceneReading.h"

#include <gtest/gtest.h>

namespace {

/// A kit with a part below a part, and a field of each kind that no toolkit node has.
class IoTestKit : public LuInteractionKit {
    LU_KIT_HEADER(IoTestKit)
    IoTestKit();
    LuSFVec2i32 pixels{LvVec2i32(1, 2)};
    LuSFString text;
    LuSFFilePathString file;
    LuMFVec2f points;
    LuSFNode node;
    LuSFNode outer;
    LuSFNode inner;
};

LU_KIT_SOURCE(IoTestKit, LuInteractionKit, "IoTestKit")

IoTestKit::IoTestKit() {
    LuKitConstructor kit(s_class, this, &IoTestKit::initClass);
    kit.field("pixels", pixels);
    kit.field("text", text);
    kit.field("file", file);
    kit.field("points", points);
    kit.field("node", node);
    kit.part("outer", outer, "Separator", "topSeparator", false);
    kit.part("inner", inner, "Cube", "outer", false);
    createDefaultParts();
}

class KitFile : public testing::Test {
protected:
    void SetUp() override {
        LuDB::init();
        IoTestKit::initClass();
    }
    void TearDown() override {
        IoTestKit::exitClass();
        LuDB::finish();
    }
};

IoTestKit& kitOf(const Reading& reading) { return dynamic_cast<IoTestKit&>(*reading.root->getChild(0)); }

TEST_F(KitFile, fields_areReadAndWritten) {
    const char* const text =
        "IoTestKit { pixels 3 -4 text \"a\" file \"b/c\" points [ 1 2, 3 4 ] node Cube {} }";
    const Reading first = readScene(text);
    ASSERT_EQ(first.getFault(), "it was read");
    EXPECT_EQ(kitOf(first).pixels.getValue(), LvVec2i32(3, -4));
    EXPECT_EQ(kitOf(first).points.getNum(), 2);
    EXPECT_TRUE(kitOf(first).node.getValue()->isOfType(LuCube::getClassTypeId()));
    for (const bool isBinary : {false, true}) {
        const std::string written = writeScene(first.root.get(), isBinary);
        const Reading second = readScene(written);
        ASSERT_EQ(second.getFault(), "it was read") << written;
        EXPECT_TRUE(first.root->isEqual(*second.root)) << written;
        EXPECT_EQ(writeScene(second.root.get(), isBinary), written);
    }
}

TEST_F(KitFile, part_goesInWithThePartsAbove) {
    const Reading reading = readScene("IoTestKit { inner Cube { width 9 } }");
    ASSERT_EQ(reading.getFault(), "it was read");
    IoTestKit& kit = kitOf(reading);
    auto* const outer = static_cast<LuSeparator*>(kit.getPart("outer", false));
    ASSERT_TRUE(outer);
    ASSERT_EQ(outer->getNumChildren(), 1);
    EXPECT_EQ(outer->getChild(0), kit.getPart("inner", false));
    EXPECT_TRUE(kit.getPart("topSeparator", false));
}

TEST_F(KitFile, part_isWrittenAndReadAgain) {
    const Reading first = readScene("IoTestKit { inner DEF A Cube { width 9 } } USE A");
    ASSERT_EQ(first.getFault(), "it was read");
    for (const bool isBinary : {false, true}) {
        const std::string written = writeScene(first.root.get(), isBinary);
        const Reading second = readScene(written);
        ASSERT_EQ(second.getFault(), "it was read") << written;
        const LuNode* const inner = kitOf(second).getPart("inner", false);
        ASSERT_TRUE(inner);
        EXPECT_EQ(static_cast<const LuCube*>(inner)->width.getValue(), 9);
        EXPECT_EQ(writeScene(second.root.get(), isBinary), written);
    }
}

TEST_F(KitFile, nodeOfAWrongType_isNamedWithThePart) {
    EXPECT_EQ(readScene("IoTestKit { inner Cone {} }").getFault(),
              "1:25: found a node of type Cone, expected one of type Cube for the part inner");
}

TEST_F(KitFile, part_canBeEmpty) {
    const Reading reading = readScene("IoTestKit { inner Cube {} inner NULL }");
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_FALSE(kitOf(reading).getPart("inner", false));
}

TEST_F(KitFile, nodeThatWasReplaced_canStillBeUsed) {
    const Reading reading = readScene("IoTestKit { node DEF A Cube { width 3 } node NULL } USE A");
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_EQ(dynamic_cast<LuCube&>(*reading.root->getChild(1)).width.getValue(), 3);
}

TEST_F(KitFile, child_isRefused) {
    EXPECT_EQ(readScene("IoTestKit { Cube {} }").getFault(),
              "1:13: found \"Cube\", but a IoTestKit has no children");
}

TEST_F(KitFile, sharedNodeInAField_isWrittenOnce) {
    const Reading reading =
        readScene("IoTestKit { node DEF _1 Group { DEF _2 Cube {} USE _2 } inner USE _2 }");
    ASSERT_EQ(reading.getFault(), "it was read");
    EXPECT_EQ(writeScene(reading.root.get(), false), "#Lumora V2.0 ascii\n"
                                                     "\n"
                                                     "IoTestKit {\n"
                                                     "    node Group {\n"
                                                     "        DEF _1 Cube {}\n"
                                                     "        USE _1\n"
                                                     "    }\n"
                                                     "    inner USE _1\n"
                                                     "}\n");
}

} // namespace
