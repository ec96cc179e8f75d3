// SPDX-License-Identifier: MIT
#include "tests/layout/DialogTest.h"

namespace {

class LuStackDialogTest : public DialogTest {
protected:
    /// A dialog whose only child is the container given as text; it is built.
    template <class Group>
    Group* buildDialog(const std::string& container) {
        m_dialog = read<LuTopLevelDialog>(("TopLevelDialog { " + container + " }").c_str());
        if (!m_dialog)
            return nullptr;
        m_dialog->buildDialog(nullptr, 0);
        return static_cast<Group*>(m_dialog->getChild(0));
    }

    static std::vector<int> getWidths(LuDialogGroup* group) {
        std::vector<int> widths;
        for (int i = 0; i < group->getNumChildren(); ++i)
            widths.push_back(getExtent(group->getChild(i)->getWidget()).x);
        return widths;
    }

    LuTopLevelDialog* m_dialog = nullptr;
};

TEST_F(LuStackDialogTest, childrenOfAColumn_standSideBySide) {
    auto* const column = buildDialog<LuColumnDialog>(
        "ColumnDialog { columnSpacing 4 margin 10 DialogComponent { width 100 } DialogComponent { } }");
    EXPECT_EQ(getCorner(column->getChild(0)->getWidget()), LvVec2i32(10, 10));
    EXPECT_EQ(getCorner(column->getChild(1)->getWidget()), LvVec2i32(114 + 3, 10));
}

TEST_F(LuStackDialogTest, childrenOfARow_standOneBelowTheOther) {
    auto* const row = buildDialog<LuRowDialog>(
        "RowDialog { rowSpacing 4 margin 10 DialogComponent { fixedHeight TRUE } DialogComponent { } }");
    EXPECT_EQ(getCorner(row->getChild(0)->getWidget()), LvVec2i32(10, 10));
    EXPECT_EQ(getCorner(row->getChild(1)->getWidget()), LvVec2i32(10, 42));
}

TEST_F(LuStackDialogTest, moreRoomThanTheDefault_isSharedByTheChildren) {
    const std::string child = "DialogComponent { width 100 }";
    // 306 is the default width of three children with the frame.
    auto* const column = buildDialog<LuColumnDialog>("ColumnDialog { edgeStyle SHADOW_OUT width 426 " +
                                                     child + child + child + "}");
    EXPECT_EQ(getWidths(column), (std::vector<int>{140, 140, 140}));
}

TEST_F(LuStackDialogTest, childOfFixedWidth_getsNoneOfTheRoom) {
    const std::string child = "DialogComponent { width 100 }";
    auto* const column =
        buildDialog<LuColumnDialog>("ColumnDialog { edgeStyle SHADOW_OUT width 426 " + child +
                                    "DialogComponent { width 100 fixedWidth TRUE }" + child + "}");
    EXPECT_EQ(getWidths(column), (std::vector<int>{160, 100, 160}));
}

TEST_F(LuStackDialogTest, allChildrenFixed_roomStaysEmpty) {
    const std::string child = "DialogComponent { width 100 fixedWidth TRUE }";
    auto* const column =
        buildDialog<LuColumnDialog>("ColumnDialog { edgeStyle SHADOW_OUT width 426 " + child + child + "}");
    EXPECT_EQ(getWidths(column), (std::vector<int>{100, 100}));
    EXPECT_EQ(getCorner(column->getChild(1)->getWidget()).x, 100);
}

TEST_F(LuStackDialogTest, groupNarrowerThanItsMinima_childrenStopThereAndBarsCome) {
    const std::string child = "DialogComponent { width 100 minWidth 80 }";
    auto* const column = buildDialog<LuColumnDialog>(
        "ColumnDialog { edgeStyle SHADOW_OUT width 90 maxWidth 90 " + child + child + "}");
    EXPECT_EQ(getWidths(column), (std::vector<int>{80, 80}));
    EXPECT_TRUE(GetWindowLongPtrA(column->getWidget(), GWL_STYLE) & WS_HSCROLL);
}

TEST_F(LuStackDialogTest, invisibleLabelInARow_getsTheCommonWidthToo) {
    auto* const row = buildDialog<LuRowDialog>("RowDialog { DialogComponent { label \"A longer label\" }"
                                               " DialogComponent { label \"B\" labelVisibility FALSE } }");
    const LvVec2i32 longer = LuPanelix::getLabelPixelSize("A longer label", nullptr);
    LvVec2i32 size, position;
    row->getChild(1)->labelVisibility = true;
    row->getChild(1)->get2DComponentSize(size, position);
    EXPECT_EQ(position.x, 3 + 2 + longer.x);
}

TEST_F(LuStackDialogTest, labelsInAColumn_areEachAsWideAsTheyNeed) {
    auto* const column =
        buildDialog<LuColumnDialog>("ColumnDialog { DialogComponent { label \"A longer label\" }"
                                    " DialogComponent { label \"B\" } }");
    LvVec2i32 size, position;
    column->getChild(1)->get2DComponentSize(size, position);
    EXPECT_EQ(position.x, 5 + LuPanelix::getLabelPixelSize("B", nullptr).x);
}

TEST_F(LuStackDialogTest, spacingSetBeforeThereAreWindows_isHarmless) {
    Held<LuColumnDialog> column;
    column->addChild(new LuDialogComponent);
    column->columnSpacing = 12;
    EXPECT_FALSE(column->getChild(0)->isBuilt2D());
    EXPECT_EQ(getSizesOf(column.get()).size.x, 206);
}

TEST_F(LuStackDialogTest, spacingSetAfterTheBuild_movesTheChildren) {
    auto* const row = buildDialog<LuRowDialog>(
        "RowDialog { DialogComponent { fixedHeight TRUE } DialogComponent { fixedHeight TRUE } }");
    row->rowSpacing = 12;
    EXPECT_EQ(getCorner(row->getChild(1)->getWidget()).y, 40);
}

TEST_F(LuStackDialogTest, spacingAndMarginAtTheEndsOfTheNumbers_areHarmless) {
    auto* const row = buildDialog<LuRowDialog>("RowDialog { DialogComponent { } DialogComponent { } }");
    for (const int end : {2147483647, -2147483647 - 1}) {
        row->rowSpacing = end;
        row->margin = end;
        build(row, GetParent(row->getWidget()), 1);
    }
    EXPECT_EQ(row->getNumChildren(), 2);
}

TEST_F(LuStackDialogTest, contentSize_isTheSumAlongTheMainAxisWithItsGaps) {
    Held<LuColumnDialog> column;
    column->margin = 4;
    column->columnSpacing = 3;
    EXPECT_EQ(column->getComponentInitSize(), LvVec2i32(5, 8));
    column->addChild(new LuDialogComponent);
    EXPECT_EQ(column->getComponentInitSize(), LvVec2i32(5, 8));
    column->resetSize();
}

TEST_F(LuStackDialogTest, edgeStyle_movesTheChildrenToItsInset) {
    auto* const row = buildDialog<LuRowDialog>("RowDialog { edgeStyle SHADOW_IN DialogComponent { } }");
    const LvVec2i32 atShadowIn = getCorner(row->getChild(0)->getWidget());
    EXPECT_EQ(atShadowIn, LvVec2i32(2, 2));
}

TEST_F(LuStackDialogTest, deepNest_isLaidOut) {
    std::string text;
    constexpr int DEPTH = 60;
    for (int i = 0; i < DEPTH; ++i)
        text += i % 2 ? "RowDialog { " : "ColumnDialog { ";
    text += "DialogComponent { auditorID \"deepest\" }";
    for (int i = 0; i < DEPTH; ++i)
        text += "}";
    buildDialog<LuColumnDialog>(text);
    auto* const deepest = static_cast<LuDialogComponent*>(m_dialog->searchForAuditorId("deepest"));
    ASSERT_NE(deepest, nullptr);
    EXPECT_TRUE(IsWindow(deepest->getWidget()));
}

TEST_F(LuStackDialogTest, childrenIn3D_standRelativeToTheCornerOfTheFrame) {
    Held<LuRowDialog> row;
    row->addChild(new LuDialogComponent);
    row->addChild(new LuDialogComponent);
    row->getChild(0)->fixedHeight = true;
    row->getChild(1)->fixedHeight = true;
    buildIn3D(row.get());
    EXPECT_EQ(row->getChild(0)->getPosition(), LvVec2i32(0, 0));
    EXPECT_EQ(row->getChild(1)->getPosition(), LvVec2i32(0, 28));
    EXPECT_TRUE(row->isBuilt3D());
    EXPECT_FALSE(row->isBuilt2D());
}

} // namespace
