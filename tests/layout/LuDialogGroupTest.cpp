// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuSearchAction.h"
#include "tests/layout/DialogTest.h"

namespace {

using LuDialogGroupTest = DialogTest;

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
