// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuText3.h"
#include "tests/core/OpenPanelix.h"
#include "tests/host/ComponentTest.h"

#include <algorithm>

namespace {

class TextTest : public ComponentTest {
protected:
    TextTest() {
        component->build(0);
        font->size.setValue(10);
        properties->addChild(font);
    }
    LvString convert(const char* text) { return LuPanelix::convertToCString(text, component.get()); }

    std::vector<std::string> getLines() {
        std::vector<std::string> lines;
        for (const LvString& line : text->string.getValues())
            lines.push_back(line.str());
        return lines;
    }
    float widthOf(const char* line) {
        const Held<LuText3> measured;
        measured->string.setValue(LvString(line));
        return component->measureText(properties.get(), measured.get()).getSize().x;
    }
    int wrap(const char* line, float width) {
        text->string.setValue(LvString(line));
        return OpenPanelix::wrap3DTextLine(text.get(), 0, width, properties.get(), component.get());
    }

    using Lines = std::vector<std::string>;
    Held<OpenPanelix> component;
    Held<LuText3> text;
    Held<LuGroup> properties;
    LuFont* font = new LuFont;
};

TEST_F(TextTest, EscapesBecomeWhatTheyStandFor) {
    EXPECT_EQ(convert("a\\nb"), "a\nb");
    EXPECT_EQ(convert("a\\tb"), "a\tb");
    EXPECT_EQ(convert("\\\"a\\\""), "\"a\"");
    EXPECT_EQ(convert("\\q"), "q");
    EXPECT_EQ(convert("\\\\"), "\\");
}

TEST_F(TextTest, CarriageReturnsGo) { EXPECT_EQ(convert("a\r\nb\r"), "a\nb"); }

TEST_F(TextTest, EscapedCarriageReturnAndLineFeedStay) { EXPECT_EQ(convert("a\\\rb\\\nc"), "a\rb\nc"); }

TEST_F(TextTest, LineEndIsTheComponents) {
    component->lineEnd = "\r\n";
    EXPECT_EQ(convert("a\\nb\nc"), "a\r\nb\r\nc");
}

TEST_F(TextTest, ComponentThatKeepsEscapesGetsACopy) {
    component->areEscapesKept = true;
    EXPECT_EQ(convert("a\\nb\r"), "a\\nb\r");
}

TEST_F(TextTest, LoneBackslashAtTheEndGoes) {
    EXPECT_EQ(convert("a\\"), "a");
    EXPECT_EQ(convert("\\"), "");
    LuPanelix::getLabelPixelSize("a\\", nullptr);
}

TEST_F(TextTest, NoComponentCountsAsNoSpecialOne) {
    EXPECT_EQ(LuPanelix::convertToCString("a\\nb", nullptr), "a\nb");
}

TEST_F(TextTest, BackConversionGivesTheEmptyText) { EXPECT_EQ(LuPanelix::convertFromCString("a\nb", 0), ""); }

TEST_F(TextTest, EmptyLabelNeedsNoRoomAndNoWindow) {
    EXPECT_EQ(LuPanelix::getLabelPixelSize("", nullptr), LvVec2i32(0, 0));
}

TEST_F(TextTest, LabelNeedsThreePixelsMoreThanItsText) {
    const LvVec2i32 one = LuPanelix::getLabelPixelSize("x", nullptr);
    const LvVec2i32 two = LuPanelix::getLabelPixelSize("xx", nullptr);
    EXPECT_EQ(two.x - 3, (one.x - 3) * 2);
    EXPECT_EQ(one.y, 13 + 3);
}

TEST_F(TextTest, TwoLinesNeedTheWiderAndTwiceTheHeight) {
    const LvVec2i32 wide = LuPanelix::getLabelPixelSize("xy", nullptr);
    const LvVec2i32 both = LuPanelix::getLabelPixelSize("x\\nxy", nullptr);
    EXPECT_EQ(both.x, wide.x);
    EXPECT_EQ(both.y, (wide.y - 3) * 2 + 3);
}

TEST_F(TextTest, SingleLineComponentMeasuresTheWholeTextAsOneLine) {
    component->isOneLine = true;
    const LvVec2i32 size = LuPanelix::getLabelPixelSize("x\\nxy", component.get());
    EXPECT_EQ(size.y, 13 + 3);
    EXPECT_GT(size.x, LuPanelix::getLabelPixelSize("xy", nullptr).x);
}

TEST_F(TextTest, TextSplitsAtLineFeeds) {
    OpenPanelix::setStringToText3(text.get(), "x\n");
    EXPECT_EQ(getLines(), (Lines{"x", ""}));
    OpenPanelix::setStringToText3(text.get(), "a\nb\nc");
    EXPECT_EQ(getLines(), (Lines{"a", "b", "c"}));
}

TEST_F(TextTest, SplitTextLeavesEntriesBehindItAlone) {
    OpenPanelix::setStringToText3(text.get(), "a\nb\nc");
    OpenPanelix::setStringToText3(text.get(), "d");
    EXPECT_EQ(getLines(), (Lines{"d", "b", "c"}));
}

TEST_F(TextTest, InsertAtColumnSplitsTheLine) {
    OpenPanelix::setStringToText3(text.get(), "abcd");
    EXPECT_EQ(OpenPanelix::insertTextTo3DText("XY", text.get(), 0, 2), 0);
    EXPECT_EQ(getLines(), (Lines{"abXYcd"}));
}

TEST_F(TextTest, InsertAtColumnMinusOneAppends) {
    OpenPanelix::setStringToText3(text.get(), "abcd");
    EXPECT_EQ(OpenPanelix::insertTextTo3DText("XY", text.get(), 0, -1), 0);
    EXPECT_EQ(getLines(), (Lines{"abcdXY"}));
}

TEST_F(TextTest, InsertBeyondTheEndMakesTheLine) {
    EXPECT_EQ(OpenPanelix::insertTextTo3DText("XY", text.get(), 2, -1), 2);
    EXPECT_EQ(getLines(), (Lines{"", "", "XY"}));
}

TEST_F(TextTest, InsertedLineFeedOpensALineAndMovesEntriesByTwo) {
    OpenPanelix::setStringToText3(text.get(), "a\nb\nc\nd");
    EXPECT_EQ(OpenPanelix::insertTextTo3DText("\n", text.get(), 0, 0), 1);
    EXPECT_EQ(getLines(), (Lines{"a", "", "c", "b", "c"}));
}

TEST_F(TextTest, InsertedLineFeedAtTheEndOpensALine) {
    OpenPanelix::setStringToText3(text.get(), "a");
    EXPECT_EQ(OpenPanelix::insertTextTo3DText("\n", text.get(), 0, 0), 1);
    EXPECT_EQ(getLines(), (Lines{"a", ""}));
}

TEST_F(TextTest, LineThatFitsStaysAsItIs) {
    EXPECT_EQ(wrap("abc", 1000), 0);
    EXPECT_EQ(getLines(), (Lines{"abc"}));
}

TEST_F(TextTest, EmptyLineStaysAsItIs) {
    EXPECT_EQ(wrap("", 1000), 0);
    EXPECT_EQ(getLines(), (Lines{""}));
}

TEST_F(TextTest, WideWordBreaksAndItsLastCharacterBeginsTheNextLine) {
    const float limit = widthOf("abc") - 0.01F;
    EXPECT_EQ(wrap("abcd", limit), 1);
    EXPECT_EQ(getLines(), (Lines{"abc", "cd"}));
}

TEST_F(TextTest, LineThatCrossesWithItsLastCharacterDoublesItToo) {
    const float limit = widthOf("abc") - 0.01F;
    EXPECT_EQ(wrap("abc", limit), 1);
    EXPECT_EQ(getLines(), (Lines{"abc", "c"}));
}

TEST_F(TextTest, LineThatFillsTheWidthExactlyIsNotDoubled) {
    EXPECT_EQ(wrap("abcd", widthOf("abc")), 1);
    EXPECT_EQ(getLines(), (Lines{"abc", "d"}));
}

TEST_F(TextTest, CharacterWiderThanTheWidthStandsAloneAndTheWrapEnds) {
    EXPECT_EQ(wrap("WWW", widthOf("W") * 0.5F), 2);
    EXPECT_EQ(getLines(), (Lines{"W", "W", "W"}));
    EXPECT_EQ(wrap("WW", 0), 1);
    EXPECT_EQ(wrap("WW", -5), 1);
}

TEST_F(TextTest, WrapOfALineThatIsNotThereDoesNothing) {
    text->string.setValue(LvString("abc"));
    EXPECT_EQ(OpenPanelix::wrap3DTextLine(text.get(), 1, 5, properties.get(), component.get()), 1);
    EXPECT_EQ(OpenPanelix::wrap3DTextLine(text.get(), -1, 5, properties.get(), component.get()), -1);
    EXPECT_EQ(getLines(), (Lines{"abc"}));
}

TEST_F(TextTest, WrapKeepsCharactersOfSeveralBytesWhole) {
    const std::string word = "\u00e4\u00f6\u00fc";
    wrap(word.c_str(), widthOf("\u00e4") * 0.5F);
    EXPECT_EQ(getLines(), (Lines{"\u00e4", "\u00f6", "\u00fc"}));
}

TEST_F(TextTest, LabelBoxIsKnownUntilTheLabelChanges) {
    EXPECT_FALSE(component->isLabelCachedBBox());
    component->setLabelCacheBBox({{0, 0, 0}, {1, 1, 0}});
    EXPECT_TRUE(component->isLabelCachedBBox());
    component->change3DLabel();
    EXPECT_FALSE(component->isLabelCachedBBox());
}

TEST_F(TextTest, EmptyTextHasABoxWithoutSize) {
    const LvBox3f box = component->measureText(properties.get(), text.get());
    EXPECT_EQ(box, LvBox3f({0, 0, 0}, {0, 0, 0}));
}

} // namespace
