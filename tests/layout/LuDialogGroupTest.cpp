// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuSearchAction.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/layout/DialogTest.h"

namespace {

class LuDialogGroupTest : public DialogTest {
protected:
    /// The range and the position of a scroll bar that shows.
    static SCROLLINFO getScrollInfo(HWND window, int bar) {
        SCROLLINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = SIF_ALL;
        EXPECT_TRUE(GetScrollInfo(window, bar, &info));
        return info;
    }
};

/// A dialog with a row that is 40 high and needs 62: two children of 28 with the frame.
constexpr const char* s_lowRow = "TopLevelDialog { RowDialog { minHeight 20 height 40 maxHeight 40"
                                 " DialogComponent { fixedHeight TRUE }"
                                 " DialogComponent { fixedHeight TRUE } } }";

/// Opens the operations of generic code, and what subclasses see.
class OpenRow : public LuRowDialog {
public:
    using LuBaseKit::m_children;
    using LuRowDialog::internalAddChild;
    using LuRowDialog::internalFindChild;
    using LuRowDialog::internalGetChild;
    using LuRowDialog::internalInsertChild;
    using LuRowDialog::internalRemoveAllChildren;
    using LuRowDialog::internalRemoveChild;
    using LuRowDialog::internalReplaceChild;
};

int getShown(LuPanelix* component) {
    return static_cast<LuSwitch*>(component->getPart("geomSwitch", true))->whichChild.getValue();
}

LuPickStyle* getPickStyle(LuPanelix* component) {
    auto* const geometry = static_cast<LuGroup*>(component->getPart("geomSwitch", true));
    return static_cast<LuPickStyle*>(geometry->getChild(1));
}

TEST_F(LuDialogGroupTest, childrenAddedBeforeTheFirstBuild_rebuildNothing) {
    auto* const dialog = read<LuTopLevelDialog>("TopLevelDialog { RowDialog { } }");
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    row->addChild(new LuDialogComponent);
    EXPECT_FALSE(dialog->isBuilt2D());
    EXPECT_FALSE(row->isBuilt2D());
    EXPECT_EQ(row->getNumChildren(), 1);
}

TEST_F(LuDialogGroupTest, childAddedAfterTheBuild_isBuiltAtItsPlace) {
    auto* const dialog = read<LuTopLevelDialog>("TopLevelDialog { RowDialog { DialogComponent { } } }");
    dialog->buildDialog(nullptr, 0);
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    row->addChild(new LuDialogComponent);
    EXPECT_TRUE(row->getChild(1)->isBuilt2D());
    EXPECT_EQ(getCorner(row->getChild(1)->getWidget()).y, 28);
}

TEST_F(LuDialogGroupTest, addChildOfNull_changesNothing) {
    auto* const dialog = read<LuTopLevelDialog>("TopLevelDialog { RowDialog { DialogComponent { } } }");
    dialog->buildDialog(nullptr, 0);
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    row->getChild(0)->width = 55;
    row->addChild(nullptr);
    EXPECT_EQ(row->getNumChildren(), 1);
    EXPECT_EQ(row->getChild(0)->width.getValue(), 55);
}

TEST_F(LuDialogGroupTest, removeChildOfMinusOne_rebuildsWithTheChildrenThatAreThere) {
    auto* const dialog = read<LuTopLevelDialog>("TopLevelDialog { RowDialog { DialogComponent { } } }");
    dialog->buildDialog(nullptr, 0);
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    row->getChild(0)->width = 55;
    row->removeChild(-1);
    EXPECT_EQ(row->getNumChildren(), 1);
    EXPECT_NE(row->getChild(0)->width.getValue(), 55);
}

TEST_F(LuDialogGroupTest, insertChildPastTheEnd_appends) {
    Held<LuRowDialog> row;
    auto* const first = new LuDialogComponent;
    auto* const last = new LuDialogComponent;
    row->addChild(first);
    row->insertChild(last, 99);
    EXPECT_EQ(row->getChild(0), first);
    EXPECT_EQ(row->getChild(1), last);
    EXPECT_EQ(row->findChild(last), 1);
    EXPECT_EQ(row->getChild(2), nullptr);
    EXPECT_EQ(row->getChild(-1), nullptr);
}

TEST_F(LuDialogGroupTest, childThatOutlivesItsGroup_hasNoParent) {
    Held<LuDialogComponent> child;
    {
        Held<LuRowDialog> row;
        row->addChild(child.get());
        EXPECT_EQ(child->getParent(), row.get());
    }
    EXPECT_EQ(child->getParent(), nullptr);
}

TEST_F(LuDialogGroupTest, childThatLeaves_keepsItsParent) {
    Held<LuDialogComponent> child;
    Held<LuRowDialog> row;
    row->addChild(child.get());
    row->removeChild(child.get());
    EXPECT_EQ(child->getParent(), row.get());
}

TEST_F(LuDialogGroupTest, insertChildOfNull_isIgnored) {
    Held<LuRowDialog> row;
    row->insertChild(nullptr, 0);
    EXPECT_EQ(row->getNumChildren(), 0);
}

TEST_F(LuDialogGroupTest, replacedAndRemovedChildren_loseTheirWindows) {
    auto* const dialog =
        read<LuTopLevelDialog>("TopLevelDialog { RowDialog { DialogComponent { } DialogComponent { } } }");
    dialog->buildDialog(nullptr, 0);
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    const Held<LuDialogComponent> first(row->getChild(0));
    const Held<LuDialogComponent> second(row->getChild(1));
    auto* const fresh = new LuDialogComponent;
    row->replaceChild(first.get(), fresh);
    EXPECT_EQ(row->getChild(0), fresh);
    EXPECT_EQ(first->getWidget(), nullptr);
    EXPECT_TRUE(IsWindow(fresh->getWidget()));
    row->removeAllChildren();
    EXPECT_EQ(row->getNumChildren(), 0);
    EXPECT_EQ(second->getWidget(), nullptr);
}

TEST_F(LuDialogGroupTest, replaceChildByNull_keepsTheChild) {
    Held<LuRowDialog> row;
    row->addChild(new LuDialogComponent);
    row->replaceChild(0, nullptr);
    EXPECT_NE(row->getChild(0), nullptr);
}

TEST_F(LuDialogGroupTest, scrollBarThatAlwaysShows_widensTheBorder) {
    Held<LuRowDialog> row;
    row->margin = 5;
    row->vScrollVisibility = LuDialogGroup::ALWAYS;
    row->addChild(new LuDialogComponent);
    // 200 of the child, 5 of margin on both sides, 6 of the frame, 16 of the bar.
    EXPECT_EQ(getSizesOf(row.get()).size, LvVec2i32(232, 44));
    LvVec2i32 size(100, 100);
    row->fixSizeWithBorder(size, -1);
    EXPECT_EQ(size, LvVec2i32(78, 94));
}

TEST_F(LuDialogGroupTest, borderAroundTheLargestSize_saturates) {
    Held<LuDialogGroup> group;
    group->vScrollVisibility = LuDialogGroup::ALWAYS;
    LvVec2i32 size(2147483632, 10);
    group->fixSizeWithBorder(size, 1);
    EXPECT_EQ(size, LvVec2i32(2147483647, 10));
    size.x = -2147483647 - 1;
    group->fixSizeWithBorder(size, -1);
    EXPECT_EQ(size.x, -2147483647 - 1);
}

TEST_F(LuDialogGroupTest, noTopLevelDialogAbove_sizesAreResetAndNothingIsBuilt) {
    Held<LuRowDialog> row;
    auto* const inner = new LuRowDialog;
    row->addChild(inner);
    inner->addChild(new LuDialogComponent);
    buildIn3D(row.get());
    EXPECT_GT(row->width.getValue(), 0);
    auto* const fresh = new LuDialogComponent;
    inner->addChild(fresh);
    EXPECT_EQ(row->width.getValue(), 0);
    EXPECT_EQ(inner->height.getValue(), 0);
    EXPECT_FALSE(fresh->isBuilt3D());
}

TEST_F(LuDialogGroupTest, sizesOfTheUser_stayInAGroupThatIsNotResizedByItsChildren) {
    Held<LuRowDialog> row;
    row->windowResizedByChildren = false;
    row->addChild(new LuDialogComponent);
    buildIn3D(row.get());
    const int before = row->width.getValue();
    row->addChild(new LuDialogComponent);
    EXPECT_EQ(row->width.getValue(), before);
}

TEST_F(LuDialogGroupTest, idOfTwoChildren_findsTheFirst) {
    auto* const dialog = read<LuTopLevelDialog>(
        "TopLevelDialog { auditorID \"x\" RowDialog { ColumnDialog { DialogComponent { auditorID \"x\" } }"
        " DialogComponent { auditorID \"x\" } DialogComponent { } } }");
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    auto* const column = static_cast<LuColumnDialog*>(row->getChild(0));
    EXPECT_EQ(row->searchForAuditorId("x"), column->getChild(0));
    EXPECT_EQ(dialog->searchForAuditorId("x"), column->getChild(0));
    EXPECT_EQ(column->searchForAuditorId("X"), nullptr);
    EXPECT_EQ(row->searchForAuditorId(""), column);
}

TEST_F(LuDialogGroupTest, groupThatIsDisabled_disablesItsChildrenAndKeepsTheirFields) {
    auto* const dialog = read<LuTopLevelDialog>(
        "TopLevelDialog { RowDialog { enable FALSE DialogComponent { } DialogComponent { enable FALSE } } }");
    dialog->buildDialog(nullptr, 0);
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    EXPECT_FALSE(IsWindowEnabled(row->getChild(0)->getWidget()));
    row->enable = true;
    EXPECT_TRUE(IsWindowEnabled(row->getChild(0)->getWidget()));
    EXPECT_FALSE(IsWindowEnabled(row->getChild(1)->getWidget()));
    EXPECT_TRUE(row->getChild(0)->enable.getValue());
}

TEST_F(LuDialogGroupTest, roomBelowTheMinimum_showsAScrollBarAndScrolls) {
    auto* const dialog = read<LuTopLevelDialog>("TopLevelDialog { RowDialog { minHeight 20 height 40 "
                                                "maxHeight 40 DialogComponent { fixedHeight TRUE }"
                                                " DialogComponent { fixedHeight TRUE } } }");
    dialog->buildDialog(nullptr, 0);
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    const HWND window = row->getWidget();
    EXPECT_TRUE(GetWindowLongPtrA(window, GWL_STYLE) & WS_VSCROLL);
    // A window that doesn't show does not scroll.
    dialog->show();
    const int before = getCorner(row->getChild(1)->getWidget()).y;
    SendMessageA(window, WM_VSCROLL, SB_LINEDOWN, 0);
    EXPECT_EQ(getCorner(row->getChild(1)->getWidget()).y, before - 1);
    SendMessageA(window, WM_VSCROLL, SB_LINEUP, 0);
    SendMessageA(window, WM_VSCROLL, SB_LINEUP, 0);
    EXPECT_EQ(getCorner(row->getChild(1)->getWidget()).y, before);
}

TEST_F(LuDialogGroupTest, scrollBar_hasTheMinimumAsItsRangeAndTheWindowAsItsPage) {
    auto* const dialog = read<LuTopLevelDialog>(s_lowRow);
    dialog->buildDialog(nullptr, 0);
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    SCROLLINFO info = getScrollInfo(row->getWidget(), SB_VERT);
    EXPECT_EQ(info.nMin, 0);
    EXPECT_EQ(info.nMax, 62);
    EXPECT_EQ(info.nPage, 40u);
    // The bar below takes its room from the window, and counts in the range once more.
    row->hScrollVisibility = LuDialogGroup::ALWAYS;
    build(row, dialog->getWidget(), 1);
    info = getScrollInfo(row->getWidget(), SB_VERT);
    EXPECT_EQ(info.nMax, 62 + 16 + 16);
}

TEST_F(LuDialogGroupTest, scrollBarThatNeverShows_doesNotComeForTooLittleRoom) {
    auto* const dialog = read<LuTopLevelDialog>(s_lowRow);
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    row->vScrollVisibility = LuDialogGroup::NEVER;
    dialog->buildDialog(nullptr, 0);
    EXPECT_FALSE(GetWindowLongPtrA(row->getWidget(), GWL_STYLE) & WS_VSCROLL);
}

TEST_F(LuDialogGroupTest, scrolledGroup_staysScrolledWhenItIsLaidOutAgain) {
    auto* const dialog = read<LuTopLevelDialog>(s_lowRow);
    dialog->buildDialog(nullptr, 0);
    dialog->show();
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    for (int i = 0; i < 5; ++i)
        SendMessageA(row->getWidget(), WM_VSCROLL, SB_LINEDOWN, 0);
    const LvVec2i32 first = getCorner(row->getChild(0)->getWidget());
    EXPECT_EQ(first.y, -5);
    build(row, dialog->getWidget(), 1);
    EXPECT_EQ(getCorner(row->getChild(0)->getWidget()), first);
    EXPECT_EQ(getScrollInfo(row->getWidget(), SB_VERT).nPos, 5);
}

TEST_F(LuDialogGroupTest, removeAllChildren_rebuildsTheDialogAbove) {
    auto* const dialog =
        read<LuTopLevelDialog>("TopLevelDialog { RowDialog { RowDialog { DialogComponent { } "
                               "} DialogComponent { } } }");
    dialog->buildDialog(nullptr, 0);
    auto* const outer = static_cast<LuRowDialog*>(dialog->getChild(0));
    auto* const inner = static_cast<LuRowDialog*>(outer->getChild(0));
    EXPECT_GE(inner->height.getValue(), 28);
    inner->removeAllChildren();
    EXPECT_EQ(getSizesOf(inner).minSize.y, inner->minHeight.getValue());
    EXPECT_EQ(inner->minHeight.getValue(), 6);
    EXPECT_TRUE(outer->minHeight.isDefault());
}

TEST_F(LuDialogGroupTest, noTopLevelDialogAbove_resetSizesAreNotWritten) {
    const Held<LuRowDialog> row;
    row->addChild(new LuDialogComponent);
    row->minHeight = 12;
    buildIn3D(row.get());
    row->removeChild(0);
    EXPECT_EQ(write(row.get()), "#Lumora V2.0 ascii\n\nRowDialog {\n    minHeight 12\n}\n");
}

TEST_F(LuDialogGroupTest, show3D_reachesTheChildren) {
    const Held<LuRowDialog> row;
    row->addChild(new LuDialogComponent);
    buildIn3D(row.get());
    row->show3D(0);
    EXPECT_EQ(getShown(row.get()), LuSwitch::SHOW_NONE);
    EXPECT_EQ(getShown(row->getChild(0)), LuSwitch::SHOW_NONE);
}

TEST_F(LuDialogGroupTest, newPlaceIn3D_reachesTheChildrenWithTheDepthOfTheFrame) {
    const Held<LuRowDialog> row;
    row->addChild(new LuDialogComponent);
    buildIn3D(row.get());
    const float depth = row->getChild(0)->get3DParentTranslation().z;
    EXPECT_GT(depth, 0);
    LvVec3f moved(10, 20, 30);
    row->set3DParentTranslation(moved);
    row->change3DPosition();
    EXPECT_EQ(row->getChild(0)->get3DParentTranslation(), LvVec3f(10, 20, 30 + depth));
}

TEST_F(LuDialogGroupTest, groupThatIsDisabled_disablesItsChildrenIn3D) {
    const Held<LuRowDialog> row;
    row->enable = false;
    row->addChild(new LuDialogComponent);
    row->addChild(new LuDialogComponent);
    row->getChild(1)->enable = false;
    buildIn3D(row.get());
    EXPECT_EQ(getPickStyle(row->getChild(0))->style.getValue(), LuPickStyle::UNPICKABLE);
    row->enable = true;
    EXPECT_EQ(getPickStyle(row->getChild(0))->style.getValue(), LuPickStyle::SHAPE);
    EXPECT_EQ(getPickStyle(row->getChild(1))->style.getValue(), LuPickStyle::UNPICKABLE);
}

TEST_F(LuDialogGroupTest, windowsThatTheSystemEnded_areMadeAnewWithTheStateOfTheGroup) {
    auto* const dialog =
        read<LuTopLevelDialog>("TopLevelDialog { RowDialog { enable FALSE DialogComponent { } } }");
    dialog->buildDialog(nullptr, 0);
    auto* const row = static_cast<LuRowDialog*>(dialog->getChild(0));
    DestroyWindow(row->getWidget());
    build(row, dialog->getWidget(), 1);
    EXPECT_TRUE(IsWindow(row->getChild(0)->getWidget()));
    EXPECT_FALSE(IsWindowEnabled(row->getChild(0)->getWidget()));
}

TEST_F(LuDialogGroupTest, operationsOfGenericCode_changeTheChildren) {
    const Held<OpenRow> row;
    auto* const first = new LuDialogComponent;
    auto* const second = new LuDialogComponent;
    auto* const third = new LuDialogComponent;
    row->internalAddChild(second);
    row->internalInsertChild(first, 0);
    EXPECT_EQ(row->getNumChildren(), 2);
    EXPECT_EQ(row->internalFindChild(second), 1);
    EXPECT_EQ(row->internalGetChild(0), first);
    row->internalReplaceChild(first, third);
    EXPECT_EQ(row->getChild(0), third);
    EXPECT_EQ(third->getParent(), row.get());
    row->internalReplaceChild(1, new LuDialogComponent);
    row->internalRemoveChild(third);
    EXPECT_EQ(row->getNumChildren(), 1);
    row->internalRemoveChild(0);
    EXPECT_EQ(row->getNumChildren(), 0);
    row->internalAddChild(new LuDialogComponent);
    row->internalRemoveAllChildren();
    EXPECT_EQ(row->getNumChildren(), 0);
}

TEST_F(LuDialogGroupTest, nodeThatIsNoComponent_standsAmongThePartsOfTheKit) {
    const Held<OpenRow> row;
    row->addChild(new LuDialogComponent);
    const Held<LuTranslation> node;
    row->internalAddChild(node.get());
    EXPECT_EQ(row->getNumChildren(), 1);
    EXPECT_EQ(row->findChild(row->getChild(0)), 0);
    EXPECT_GE(row->internalFindChild(node.get()), 1);
    row->internalRemoveChild(node.get());
    EXPECT_EQ(row->internalFindChild(node.get()), -1);
    EXPECT_EQ(row->getChildren(), &row->m_children);
}

TEST_F(LuDialogGroupTest, searchForAllInKits_endsItsPathsAtComponents) {
    const Held<LuRowDialog> row;
    row->addChild(new LuDialogComponent);
    row->addChild(new LuDialogComponent);
    buildIn3D(row.get());
    LuBaseKit::searchingChildren = true;
    LuSearchAction action;
    action.setType(LuScale::getClassTypeId());
    action.setInterest(LuSearchAction::ALL);
    action.apply(row.get());
    LuBaseKit::searchingChildren = false;
    ASSERT_GE(action.getPaths().getLength(), 2);
    EXPECT_EQ(action.getPaths()[0].getTail(), row->getChild(0));
    EXPECT_EQ(action.getPaths()[1].getTail(), row->getChild(1));
}

TEST_F(LuDialogGroupTest, searchForTheFirstInKits_endsItsPathAtTheComponent) {
    const Held<LuRowDialog> row;
    row->addChild(new LuDialogComponent);
    buildIn3D(row.get());
    LuBaseKit::searchingChildren = true;
    LuSearchAction action;
    action.setType(LuScale::getClassTypeId());
    action.apply(row.get());
    LuBaseKit::searchingChildren = false;
    ASSERT_NE(action.getPath(), nullptr);
    EXPECT_EQ(action.getPath()->getTail(), row->getChild(0));
}

TEST_F(LuDialogGroupTest, searchForTheLastInKits_givesTheWholeWayToIt) {
    const Held<LuRowDialog> row;
    row->addChild(new LuDialogComponent);
    row->addChild(new LuDialogComponent);
    buildIn3D(row.get());
    LuBaseKit::searchingChildren = true;
    LuSearchAction action;
    action.setType(LuScale::getClassTypeId());
    action.setInterest(LuSearchAction::LAST);
    action.apply(row.get());
    LuBaseKit::searchingChildren = false;
    ASSERT_NE(action.getPath(), nullptr);
    const LuPath& last = *action.getPath();
    EXPECT_TRUE(last.getTail()->isOfType(LuScale::getClassTypeId()));
    EXPECT_FALSE(last.containsNode(row->getChild(0)));
}

TEST_F(LuDialogGroupTest, searchInAnEmptyGroup_findsNothing) {
    const Held<OpenRow> row;
    ASSERT_EQ(row->m_children.getLength(), 0);
    LuBaseKit::searchingChildren = true;
    LuSearchAction action;
    action.setType(LuScale::getClassTypeId());
    action.apply(row.get());
    LuBaseKit::searchingChildren = false;
    EXPECT_EQ(action.getPath(), nullptr);
}

TEST_F(LuDialogGroupTest, writtenGroup_isReadAgain) {
    auto* const dialog = read<LuTopLevelDialog>("TopLevelDialog { label \"A\" RowDialog { margin 3 "
                                                "DialogComponent { width 10 } ColumnDialog { } } }");
    const std::string before = write(dialog);
    auto* const again = read<LuTopLevelDialog>(before.c_str());
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(write(again), before);
    auto* const row = static_cast<LuRowDialog*>(again->getChild(0));
    EXPECT_EQ(row->getNumChildren(), 2);
    EXPECT_EQ(row->getChild(0)->width.getValue(), 10);
}

TEST_F(LuDialogGroupTest, binaryGroup_isReadAgain) {
    auto* const dialog = read<LuTopLevelDialog>(
        "TopLevelDialog { RowDialog { DialogComponent { width 10 } ColumnDialog { } } }");
    LuWriteAction action;
    action.getOutput()->setBinary(true);
    action.apply(dialog);
    const std::string bytes = action.getOutput()->getBuffer();
    LuInput in;
    in.setBuffer(bytes.data(), bytes.size());
    LuSeparator* const root = LuDB::readAll(&in);
    ASSERT_NE(root, nullptr);
    const Held<LuSeparator> held(root);
    EXPECT_TRUE(root->getChild(0)->isOfType(LuTopLevelDialog::getClassTypeId()));
    EXPECT_EQ(write(root->getChild(0)), write(dialog));
}

TEST_F(LuDialogGroupTest, childOfAWrongType_failsTheReading) {
    expectMessageContaining("LuInput", "Cube");
    EXPECT_EQ(read<LuTopLevelDialog>("TopLevelDialog { RowDialog { Cube { } } }"), nullptr);
}

TEST_F(LuDialogGroupTest, searchInKits_goesThroughTheChildren) {
    Held<LuRowDialog> row;
    auto* const child = new LuDialogComponent;
    row->addChild(child);
    buildIn3D(row.get());
    LuSearchAction action;
    action.setNode(child);
    action.apply(row.get());
    EXPECT_EQ(action.getPath(), nullptr);
    LuBaseKit::searchingChildren = true;
    action.apply(row.get());
    LuBaseKit::searchingChildren = false;
    ASSERT_NE(action.getPath(), nullptr);
    EXPECT_EQ(action.getPath()->getTail(), child);
}

} // namespace
