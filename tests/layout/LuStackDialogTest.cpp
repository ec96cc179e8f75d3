// SPDX-License-Identifier: MIT
#include "tests/layout/DialogTest.h"

#include <numeric>

namespace {

/// A child with a content of a given size; it tells what its container has said.
class Content : public LuDialogComponent {
public:
    explicit Content(LvVec2i32 size, const char* text = "") : m_size(size) { label = LvString(text); }

    using LuDialogComponent::m_componentSize;
    using LuDialogComponent::m_labelSize;

    LvVec2i32 getComponentInitSize() override { return m_size; }
    void setStackAxis(int newAxis) override { axis = newAxis; }

    int axis = -1;

private:
    LvVec2i32 m_size;
};

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

TEST_F(LuStackDialogTest, contentSizeOfAColumn_isTheSumOfTheWidthsAndTheLargestHeight) {
    const Held<LuColumnDialog> column;
    column->margin = 4;
    column->columnSpacing = 3;
    auto* const low = new Content({50, 20});
    column->addChild(low);
    column->addChild(new Content({30, 40}));
    EXPECT_EQ(column->getComponentInitSize(), LvVec2i32(8 + 50 + 30 + 3, 40));
    EXPECT_EQ(low->axis, 0);
}

TEST_F(LuStackDialogTest, contentSizeOfARow_isTheSumOfTheHeightsAndTheLargestWidth) {
    const Held<LuRowDialog> row;
    row->margin = 4;
    row->rowSpacing = 3;
    auto* const low = new Content({50, 20});
    row->addChild(low);
    row->addChild(new Content({30, 40}));
    EXPECT_EQ(row->getComponentInitSize(), LvVec2i32(50, 8 + 20 + 40 + 3));
    EXPECT_EQ(low->axis, 1);
}

TEST_F(LuStackDialogTest, contentNarrowerThanTheMargins_countsTheMargins) {
    const Held<LuRowDialog> row;
    row->margin = 4;
    row->addChild(new Content({7, 20}));
    EXPECT_EQ(row->getComponentInitSize().x, 8);
}

TEST_F(LuStackDialogTest, controlsInARow_getACommonWidthAndTheHeightThatTheyOrTheirLabelsNeed) {
    const Held<LuRowDialog> row;
    auto* const wide = new Content({90, 40});
    auto* const low = new Content({30, 2}, "Label");
    auto* const silent = new Content({30, 2}, "Label");
    silent->labelVisibility = false;
    for (Content* child : {wide, low, silent})
        row->addChild(child);
    row->setChildrenComponentSize();
    EXPECT_EQ(wide->m_componentSize, LvVec2i32(90, 40));
    EXPECT_EQ(low->m_componentSize, LvVec2i32(90, LuPanelix::getLabelPixelSize("Label", nullptr).y));
    EXPECT_EQ(silent->m_componentSize, LvVec2i32(90, 2));
    row->setChildrenLabelSize();
    EXPECT_EQ(silent->m_labelSize, low->m_labelSize);
}

TEST_F(LuStackDialogTest, controlsInAColumn_areEachAsLargeAsTheyNeed) {
    const Held<LuColumnDialog> column;
    auto* const wide = new Content({90, 40});
    auto* const low = new Content({30, 2}, "Label");
    auto* const silent = new Content({30, 2}, "Label");
    silent->labelVisibility = false;
    for (Content* child : {wide, low, silent})
        column->addChild(child);
    column->setChildrenComponentSize();
    EXPECT_EQ(wide->m_componentSize, LvVec2i32(90, 40));
    EXPECT_EQ(low->m_componentSize, LvVec2i32(30, LuPanelix::getLabelPixelSize("Label", nullptr).y));
    EXPECT_EQ(silent->m_componentSize, LvVec2i32(30, 2));
    column->setChildrenLabelSize();
    EXPECT_EQ(silent->m_labelSize, LvVec2i32(0, 0));
}

TEST_F(LuStackDialogTest, sizes_areThoseOfTheChildrenWithMarginSpacingAndFrame) {
    const Held<LuColumnDialog> column;
    column->margin = 4;
    column->columnSpacing = 3;
    for (const int limit : {300, 400}) {
        auto* const child = new LuDialogComponent;
        child->maxWidth = limit;
        child->maxHeight = limit;
        column->addChild(child);
    }
    const LuSizes sizes = getSizesOf(column.get());
    EXPECT_EQ(sizes.size, LvVec2i32(400 + 8 + 3 + 6, 28 + 8 + 6));
    EXPECT_EQ(sizes.minSize, LvVec2i32(50 + 8 + 3 + 6, 25 + 8 + 6));
    EXPECT_EQ(sizes.maxSize, LvVec2i32(700 + 8 + 3 + 6, 400 + 8 + 6));
}

TEST_F(LuStackDialogTest, singlePixels_goToOneChildAfterTheOtherOverSeveralLayouts) {
    auto* const column = buildDialog<LuColumnDialog>(
        "ColumnDialog { edgeStyle SHADOW_OUT DialogComponent { width 50 } DialogComponent { width 50 }"
        " DialogComponent { width 50 } }");
    build(column, m_dialog->getWidget(), 1, {156, 0});
    const std::vector<int> before = getWidths(column);
    std::vector<int> total(3);
    for (int step = 1; step <= 3; ++step) {
        build(column, m_dialog->getWidget(), 1, {156 + step, 0});
        const std::vector<int> after = getWidths(column);
        EXPECT_EQ(std::accumulate(after.begin(), after.end(), 0), 150 + step);
        for (std::size_t i = 0; i < 3; ++i)
            total[i] = after[i] - before[i];
    }
    EXPECT_EQ(total, (std::vector<int>{1, 1, 1}));
}

TEST_F(LuStackDialogTest, childSmallerThanItWasAskedFor_leavesNoGap) {
    auto* const row = buildDialog<LuRowDialog>(
        "RowDialog { edgeStyle SHADOW_OUT DialogComponent { maxHeight 26 } DialogComponent { } }");
    EXPECT_EQ(getCorner(row->getChild(1)->getWidget()).y, 26);
}

TEST_F(LuStackDialogTest, edgeStyle_insetsTheChildrenBy3In3DWhateverTheShadow) {
    for (const auto& [style, inset] : {std::pair{LuDialogComponent::NONE, 5},
                                       {LuDialogComponent::SHADOW_IN, 8},
                                       {LuDialogComponent::SHADOW_OUT, 8}}) {
        const Held<LuColumnDialog> column;
        column->margin = 5;
        column->edgeStyle = style;
        column->addChild(new LuDialogComponent);
        buildIn3D(column.get());
        EXPECT_EQ(column->getChild(0)->getPosition(), LvVec2i32(inset, inset)) << style;
    }
}

TEST_F(LuStackDialogTest, containersGeometry_hasNoTransformBehindItsFrame) {
    const Held<LuColumnDialog> column;
    buildIn3D(column.get());
    auto* const geometry = static_cast<LuGroup*>(column->getPart("geomSwitch", false));
    EXPECT_EQ(geometry->getChild(geometry->getNumChildren() - 1), column->getPart("mainCptSeparator", false));
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
