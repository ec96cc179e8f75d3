// SPDX-License-Identifier: MIT
#include "controls/LuDialogLabel.h"

#include "tests/controls/ControlTest.h"

#include <cmath>
#include <limits>

namespace {

using Lines = std::vector<std::string>;

class LuDialogLabelTest : public ControlTest {
protected:
    Held<LuDialogLabel> m_label;

    LuText3& getText3() { return *getChildAs<LuText3>(*m_label, "labelSep", -1); }
    LvVec3f getTextPlace3D() {
        return getChildAs<LuTranslation>(*m_label, "labelSep", 0)->translation.getValue();
    }
    LvBox3f getTextBox() { return measure(m_label->getPart("labelProp", false), &getText3()); }
    HWND getChild() { return getOnlyChild(m_label->getWidget()); }
};

TEST_F(LuDialogLabelTest, type_isADialogComponent) {
    EXPECT_EQ(m_label->getTypeId().getName(), LvName("DialogLabel"));
    EXPECT_EQ(m_label->getTypeId().getParent(), LuDialogComponent::getClassTypeId());
}

TEST_F(LuDialogLabelTest, initialWidth_is4MoreThanTheTextLessTheLabelColumn) {
    m_label->label = "Some text";
    LvVec2i32 column(10, 5);
    m_label->setLabelSize(column);
    const LvVec2i32 text = LuPanelix::getLabelPixelSize("Some text", nullptr);
    EXPECT_EQ(m_label->getComponentInitSize(), LvVec2i32(text.x + 4 - 10, text.y));
}

TEST_F(LuDialogLabelTest, emptyLabelBesideALabelColumn_hasANegativeInitialWidth) {
    LvVec2i32 column(30, 5);
    m_label->setLabelSize(column);
    EXPECT_EQ(m_label->getComponentInitSize(), LvVec2i32(4 - 30, 0));
}

TEST_F(LuDialogLabelTest, emptyLabel_isRaisedToTheSmallestSizeOfAControl) {
    LvVec2i32 size, minSize, maxSize;
    m_label->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size, LvVec2i32(25, 25));
    EXPECT_EQ(minSize, LvVec2i32(25, 25));
    EXPECT_EQ(maxSize, LvVec2i32(2147483647, 2147483647));
}

TEST_F(LuDialogLabelTest, defaultHeight_isAtLeastTheTexts) {
    m_label->label = "1\\n2\\n3\\n4";
    const int textHeight = m_label->getComponentInitSize().y;
    ASSERT_GT(textHeight, 25);
    LvVec2i32 size, minSize, maxSize;
    m_label->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size.y, textHeight);
}

TEST_F(LuDialogLabelTest, labelInitSize_isNothing) {
    m_label->label = "Some text";
    EXPECT_EQ(m_label->getLabelInitSize(), LvVec2i32(0, 0));
}

TEST_F(LuDialogLabelTest, newText_keepsTheInitialSizeUntilSizesAreReset) {
    m_label->label = "Some text";
    const LvVec2i32 before = m_label->getComponentInitSize();
    m_label->label = "Some longer text";
    EXPECT_EQ(m_label->getComponentInitSize(), before);
    m_label->resetSize();
    EXPECT_GT(m_label->getComponentInitSize().x, before.x);
}

TEST_F(LuDialogLabelTest, window_isAStaticInTheMiddleOfTheHeight) {
    m_label->label = "Some text";
    buildWindows(*m_label, {200, 41});
    const int text = LuPanelix::getLabelPixelSize("Some text", nullptr).y;
    EXPECT_EQ(getStyle(getChild()), 0x52000002u);
    EXPECT_EQ(getText(getChild()), "Some text");
    EXPECT_EQ(getPlace(getChild()), Place(3, (41 - 6 - text) / 2 + 3, 194, text));
    EXPECT_TRUE(m_label->isBuilt2D());
    EXPECT_FALSE(m_label->isBuilt3D());
}

TEST_F(LuDialogLabelTest, heightBelowTheTexts_givesANegativeY) {
    m_label->label = "1\\n2\\n3\\n4";
    m_label->edgeStyle = LuDialogComponent::SHADOW_OUT;
    m_label->maxHeight = 30;
    buildWindows(*m_label, {200, 30});
    const int text = LuPanelix::getLabelPixelSize("1\\n2\\n3\\n4", nullptr).y;
    ASSERT_GT(text, 30);
    EXPECT_EQ(getPlace(getChild()), Place(0, (30 - 6 - text) / 2, 194, text));
}

TEST_F(LuDialogLabelTest, edgeStyle_movesTheTextAndKeepsItsWidth) {
    m_label->label = "Some text";
    buildWindows(*m_label, {200, 41});
    const int text = LuPanelix::getLabelPixelSize("Some text", nullptr).y;
    m_label->edgeStyle = LuDialogComponent::SHADOW_IN;
    EXPECT_EQ(getPlace(getChild()), Place(2, (41 - 6 - text) / 2 + 2, 194, text));
    m_label->edgeStyle = LuDialogComponent::SHADOW_OUT;
    EXPECT_EQ(getPlace(getChild()), Place(0, (41 - 6 - text) / 2, 194, text));
}

TEST_F(LuDialogLabelTest, alignment_isTheStyleOfTheWindow) {
    buildWindows(*m_label);
    m_label->labelAlignment = LuPanelix::LEFT;
    EXPECT_EQ(getStyle(getChild()), 0x52000000u);
    m_label->labelAlignment = LuPanelix::CENTER;
    EXPECT_EQ(getStyle(getChild()), 0x52000001u);
}

TEST_F(LuDialogLabelTest, newText_isShownAndPlaced) {
    buildWindows(*m_label, {200, 60});
    m_label->label = "One\\nTwo";
    EXPECT_EQ(getText(getChild()), "One\nTwo");
    EXPECT_EQ(std::get<3>(getPlace(getChild())), LuPanelix::getLabelPixelSize("One\\nTwo", nullptr).y);
}

TEST_F(LuDialogLabelTest, disabledLabel_hasDisabledWindows) {
    m_label->enable = false;
    buildWindows(*m_label);
    EXPECT_FALSE(IsWindowEnabled(getChild()));
    m_label->enable = true;
    EXPECT_TRUE(IsWindowEnabled(getChild()));
    EXPECT_TRUE(IsWindowEnabled(m_label->getWidget()));
}

TEST_F(LuDialogLabelTest, containersEnabling_yieldsToTheLabelsOwn) {
    buildWindows(*m_label);
    m_label->changeWidgetEnable(0);
    EXPECT_FALSE(IsWindowEnabled(getChild()));
    m_label->changeWidgetEnable(1);
    EXPECT_TRUE(IsWindowEnabled(getChild()));
    m_label->enable = false;
    m_label->changeWidgetEnable(1);
    EXPECT_FALSE(IsWindowEnabled(getChild()));
}

TEST_F(LuDialogLabelTest, windowsDestroyed_canBeBuiltAgain) {
    buildWindows(*m_label);
    const HWND before = getChild();
    m_label->destroyWidget();
    EXPECT_FALSE(IsWindow(before));
    EXPECT_FALSE(m_label->isBuilt2D());
    buildWindows(*m_label);
    EXPECT_TRUE(IsWindow(getChild()));
}

TEST_F(LuDialogLabelTest, lastReference_endsTheWindows) {
    HWND child = nullptr;
    {
        const Held<LuDialogLabel> label;
        buildWindows(*label);
        child = getOnlyChild(label->getWidget());
    }
    EXPECT_FALSE(IsWindow(child));
}

TEST_F(LuDialogLabelTest, noCarrierWindow_leavesTheLabelWithoutWindows) {
    expectMessage("LuDialogComponent Error", "CreateWindow failed");
    LvVec2i32 size, position;
    m_label->buildWidget(nullptr, size, position, 1);
    EXPECT_EQ(m_label->getWidget(), nullptr);
    m_label->label = "Some text";
    m_label->labelAlignment = LuPanelix::LEFT;
    m_label->enable = false;
}

TEST_F(LuDialogLabelTest, lineFeeds_makeLines3D) {
    m_label->width = 200;
    m_label->label = "One\\nTwo\n";
    build3D(*m_label);
    EXPECT_EQ(getLines(getText3()), Lines({"One", "Two", ""}));
}

TEST_F(LuDialogLabelTest, carriageReturnBehindALineFeed_isDropped3D) {
    m_label->width = 200;
    m_label->label = "One\n\rTwo";
    build3D(*m_label);
    EXPECT_EQ(getLines(getText3()), Lines({"One", "Two"}));
}

TEST_F(LuDialogLabelTest, carriageReturnBeforeALineFeed_stays3D) {
    m_label->width = 200;
    m_label->label = "One\r\nTwo";
    build3D(*m_label);
    EXPECT_EQ(getLines(getText3()), Lines({"One\r", "Two"}));
}

TEST_F(LuDialogLabelTest, escapes_areReadAroundCarriageReturns3D) {
    m_label->width = 200;
    m_label->label = "a\\\\\rb\\\rc\\\"";
    build3D(*m_label);
    EXPECT_EQ(getLines(getText3()), Lines({"a\\\rb\rc\""}));
}

TEST_F(LuDialogLabelTest, lineThatIsTooLong_isWrapped3D) {
    m_label->width = 60;
    m_label->label = "A text that is wider than sixty\nx";
    build3D(*m_label);
    const Lines lines = getLines(getText3());
    ASSERT_GT(lines.size(), 2u);
    EXPECT_EQ(lines.back(), "x");
    EXPECT_EQ(lines[0].substr(0, 6), "A text");
    EXPECT_EQ(lines[0].back(), lines[1].front());
}

TEST_F(LuDialogLabelTest, newText_takesTheLinesOfTheOld3D) {
    m_label->width = 200;
    m_label->label = "One\nTwo";
    build3D(*m_label);
    m_label->label = "Three";
    EXPECT_EQ(getLines(getText3()), Lines({"Three"}));
}

TEST_F(LuDialogLabelTest, alignment_isTheJustificationOfTheText3D) {
    build3D(*m_label);
    EXPECT_EQ(getText3().parts.getValue(), LuText3::FRONT);
    EXPECT_EQ(getText3().justification.getValue(), LuText3::RIGHT);
    m_label->labelAlignment = LuPanelix::LEFT;
    EXPECT_EQ(getText3().justification.getValue(), LuText3::LEFT);
    m_label->labelAlignment = LuPanelix::CENTER;
    EXPECT_EQ(getText3().justification.getValue(), LuText3::CENTER);
    m_label->labelAlignment = 7;
    EXPECT_EQ(getText3().justification.getValue(), LuText3::CENTER);
}

TEST_F(LuDialogLabelTest, leftText_begins3UnitsInside3D) {
    m_label->label = "Some text";
    m_label->labelAlignment = LuPanelix::LEFT;
    m_label->width = 201;
    build3D(*m_label);
    const LvBox3f box = getTextBox();
    EXPECT_EQ(getTextPlace3D(), LvVec3f(-97, (box.max.y + box.min.y) * -0.5F, 0));
}

TEST_F(LuDialogLabelTest, centredText_standsOnAWholeUnit3D) {
    m_label->label = "Some text";
    m_label->labelAlignment = LuPanelix::CENTER;
    m_label->width = 201;
    build3D(*m_label);
    const LvBox3f box = getTextBox();
    EXPECT_EQ(getTextPlace3D().x, std::trunc((box.max.x + box.min.x) * -0.5F));
}

TEST_F(LuDialogLabelTest, rightText_stands3UnitsAndItsWidthInside3D) {
    m_label->label = "Some text";
    m_label->width = 201;
    build3D(*m_label);
    const LvBox3f box = getTextBox();
    EXPECT_EQ(getTextPlace3D().x, std::trunc(201 * 0.5 - 3 - (box.max.x - box.min.x)));
}

TEST_F(LuDialogLabelTest, newAlignment_movesTheTextByTheNextBuild3D) {
    m_label->label = "Some text";
    m_label->width = 201;
    build3D(*m_label);
    const LvVec3f before = getTextPlace3D();
    m_label->labelAlignment = LuPanelix::LEFT;
    EXPECT_EQ(getTextPlace3D(), before);
    LvVec2i32 size, position;
    m_label->buildWidget(nullptr, size, position, 0);
    EXPECT_EQ(getTextPlace3D().x, -97);
}

TEST_F(LuDialogLabelTest, widthWithoutRoomForText_isNotWrapped3D) {
    m_label->minWidth = 1;
    m_label->width = 6;
    m_label->label = "Some text";
    build3D(*m_label);
    EXPECT_EQ(getLines(getText3()), Lines({"Some text"}));
}

TEST_F(LuDialogLabelTest, extremeWidth_isPlacedWithoutOverflow) {
    m_label->label = "Some text";
    m_label->minWidth = std::numeric_limits<int>::min();
    m_label->width = std::numeric_limits<int>::min();
    LvVec2i32 column(std::numeric_limits<int>::min(), 0);
    m_label->setLabelSize(column);
    EXPECT_EQ(m_label->getComponentInitSize().x, std::numeric_limits<int>::max());
    buildBoth(*m_label);
    EXPECT_EQ(m_label->width.getValue(), std::numeric_limits<int>::min());
}

} // namespace
