// SPDX-License-Identifier: MIT
#include "controls/LuDialogSeparator.h"

#include "layout/LuColumnDialog.h"
#include "layout/LuRowDialog.h"
#include "tests/controls/ControlTest.h"

namespace {

class LuDialogSeparatorTest : public ControlTest {
protected:
    Held<LuDialogSeparator> m_line;

    void expectSizes(LvVec2i32 size, LvVec2i32 minSize, LvVec2i32 maxSize) {
        LvVec2i32 gotSize, gotMin, gotMax;
        m_line->getDefaultSize(gotSize, gotMin, gotMax);
        EXPECT_EQ(gotSize, size);
        EXPECT_EQ(gotMin, minSize);
        EXPECT_EQ(gotMax, maxSize);
    }
    HWND getChild() { return getOnlyChild(m_line->getWidget()); }
};

TEST_F(LuDialogSeparatorTest, type_isADialogComponent) {
    EXPECT_EQ(m_line->getTypeId().getName(), LvName("DialogSeparator"));
    EXPECT_EQ(m_line->getTypeId().getParent(), LuDialogComponent::getClassTypeId());
}

TEST_F(LuDialogSeparatorTest, horizontalLine_is8Thick) { expectSizes({0, 8}, {0, 8}, {2147483647, 8}); }

TEST_F(LuDialogSeparatorTest, verticalLine_is8Thick) {
    m_line->setOrientationHorz(0);
    expectSizes({8, 0}, {8, 0}, {8, 2147483647});
}

TEST_F(LuDialogSeparatorTest, lineInAColumn_isVertical) {
    const Held<LuColumnDialog> column;
    column->addChild(m_line.get());
    column->getComponentInitSize();
    expectSizes({8, 0}, {8, 0}, {8, 2147483647});
}

TEST_F(LuDialogSeparatorTest, lineInARow_isHorizontal) {
    m_line->setOrientationHorz(0);
    const Held<LuRowDialog> row;
    row->addChild(m_line.get());
    row->getComponentInitSize();
    expectSizes({0, 8}, {0, 8}, {2147483647, 8});
}

TEST_F(LuDialogSeparatorTest, window_isAStaticWithAStaticEdge) {
    buildWindows(*m_line, {120, 8});
    EXPECT_EQ(getStyle(getChild()), 0x56000000u);
    EXPECT_EQ(getExtendedStyle(getChild()), 0x20000u);
    EXPECT_EQ(getPlace(getChild()), Place(3, 3, 114, 2));
}

TEST_F(LuDialogSeparatorTest, disabledLine_hasADisabledWindow) {
    m_line->enable = false;
    buildWindows(*m_line, {120, 8});
    EXPECT_FALSE(IsWindowEnabled(getChild()));
}

TEST_F(LuDialogSeparatorTest, newEdgeStyle_movesTheLineAndLeavesTheCarriersFrame) {
    buildWindows(*m_line, {120, 8});
    const DWORD frame = getExtendedStyle(m_line->getWidget());
    m_line->edgeStyle = LuDialogComponent::SHADOW_IN;
    EXPECT_EQ(getPlace(getChild()), Place(2, 2, 114, 2));
    EXPECT_EQ(getExtendedStyle(m_line->getWidget()), frame);
}

TEST_F(LuDialogSeparatorTest, windowsDestroyed_canBeBuiltAgain) {
    buildWindows(*m_line, {120, 8});
    const HWND before = m_line->getSeparatorWidget();
    m_line->destroyWidget();
    EXPECT_FALSE(IsWindow(before));
    EXPECT_EQ(m_line->getSeparatorWidget(), nullptr);
    buildWindows(*m_line, {120, 8});
    EXPECT_TRUE(IsWindow(getChild()));
}

TEST_F(LuDialogSeparatorTest, lastReference_endsTheWindow) {
    HWND child = nullptr;
    {
        const Held<LuDialogSeparator> line;
        buildWindows(*line);
        child = line->getSeparatorWidget();
        ASSERT_TRUE(IsWindow(child));
    }
    EXPECT_FALSE(IsWindow(child));
}

TEST_F(LuDialogSeparatorTest, otherSizesThanTheThickness_areThoseOfTheBase) {
    EXPECT_EQ(m_line->getComponentInitSize(), LvVec2i32(0, 0));
    m_line->label = "Some text";
    EXPECT_EQ(m_line->getLabelInitSize(), LuPanelix::getLabelPixelSize("Some text", nullptr));
}

TEST_F(LuDialogSeparatorTest, noCarrierWindow_leavesTheLineWithoutWindows) {
    expectMessage("LuDialogComponent Error", "CreateWindow failed");
    LvVec2i32 size, position;
    m_line->buildWidget(nullptr, size, position, 1);
    EXPECT_EQ(m_line->getSeparatorWidget(), nullptr);
    m_line->edgeStyle = LuDialogComponent::SHADOW_IN;
}

TEST_F(LuDialogSeparatorTest, orientation_choosesTheGeometry3D) {
    m_line->width = 120;
    build3D(*m_line);
    EXPECT_EQ(getPartAs(*m_line, "vFrame"), LuNode::getByName("DialogSeparatorVertical"));
    EXPECT_EQ(getPartAs(*m_line, "hFrame"), LuNode::getByName("DialogSeparatorHorizontal"));
    EXPECT_EQ(getPartAs<LuSwitch>(*m_line, "frameSwitch")->getChild(1), getPartAs(*m_line, "hFrame"));
    EXPECT_EQ(getSwitch(*m_line, "frameSwitch"), 1);
    EXPECT_EQ(getChildAs<LuScale>(*m_line, "frameSep", 0)->scaleFactor.getValue(), LvVec3f(114, 2, 1));
}

TEST_F(LuDialogSeparatorTest, newOrientation_isShownByTheNextBuild3D) {
    build3D(*m_line);
    m_line->setOrientationHorz(0);
    EXPECT_EQ(getSwitch(*m_line, "frameSwitch"), 1);
    LvVec2i32 size, position;
    m_line->buildWidget(nullptr, size, position, 0);
    EXPECT_EQ(getSwitch(*m_line, "frameSwitch"), 0);
}

TEST_F(LuDialogSeparatorTest, newSkin_keepsThePartsAndIsLoaded3D) {
    build3D(*m_line);
    EXPECT_TRUE(LuDialogSeparator::isSkinLoaded());
    LuNode* const frame = m_line->getPart("hFrame", false);
    LuDialogSeparator::change3DSkin();
    EXPECT_EQ(m_line->getPart("hFrame", false), frame);
    EXPECT_EQ(static_cast<LuGroup*>(frame)->getNumChildren(), 3);
    EXPECT_EQ(LuNode::getByName("DialogSeparatorHorizontal"), frame);
}

} // namespace
