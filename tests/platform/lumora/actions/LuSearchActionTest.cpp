// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuSearchAction.h"
#include "platform/lumora/actions/LuGetMatrixAction.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/host/ToolkitTest.h"

namespace {

class SearchTest : public ToolkitTest {
protected:
    SearchTest() {
        root->addChild(first);
        root->addChild(switchNode);
        switchNode->addChild(hidden);
        switchNode->addChild(last);
        switchNode->whichChild.setValue(1);
    }

    Held<LuSeparator> root;
    LuCube* first = new LuCube;
    LuSwitch* switchNode = new LuSwitch;
    LuCube* hidden = new LuCube;
    LuCube* last = new LuCube;
    LuSearchAction action;
};

TEST_F(SearchTest, FirstStopsAtTheFirst) {
    action.setType(LuCube::getClassTypeId());
    action.apply(root.get());
    ASSERT_NE(action.getPath(), nullptr);
    EXPECT_EQ(action.getPath()->getTail(), first);
    EXPECT_EQ(action.getPath()->getLength(), 2);
    EXPECT_TRUE(action.isFinished());
}

TEST_F(SearchTest, LastGivesTheLastThatShows) {
    action.setType(LuNode::getClassTypeId());
    action.setInterest(LuSearchAction::LAST);
    action.apply(root.get());
    ASSERT_NE(action.getPath(), nullptr);
    EXPECT_EQ(action.getPath()->getTail(), last);
    EXPECT_EQ(action.getPath()->getIndex(1), 1);
    EXPECT_EQ(action.getPath()->getIndex(2), 1);
    EXPECT_FALSE(action.isFinished());
}

TEST_F(SearchTest, LastComesBackToTheGroupWhereNothingBelowItFits) {
    auto* const outer = new LuGroup;
    auto* const inner = new LuSeparator;
    outer->addChild(new LuCube);
    outer->addChild(inner);
    inner->addChild(new LuCube);
    root->addChild(outer);
    root->addChild(new LuCube);
    action.setType(LuSeparator::getClassTypeId());
    action.setInterest(LuSearchAction::LAST);
    action.apply(root.get());
    ASSERT_NE(action.getPath(), nullptr);
    EXPECT_EQ(action.getPath()->getTail(), inner);
    EXPECT_EQ(action.getPath()->getLength(), 3);
    action.setType(LuSphere::getClassTypeId());
    action.apply(root.get());
    EXPECT_EQ(action.getPath(), nullptr);
}

TEST_F(SearchTest, LastLooksBehindSwitchesOnlyWhereAsked) {
    action.setNode(hidden);
    action.setInterest(LuSearchAction::LAST);
    action.apply(root.get());
    EXPECT_EQ(action.getPath(), nullptr);
    action.setSearchingAll(true);
    action.apply(root.get());
    ASSERT_NE(action.getPath(), nullptr);
    EXPECT_EQ(action.getPath()->getTail(), hidden);
}

TEST_F(SearchTest, AllGivesEveryPathInOrder) {
    action.setType(LuCube::getClassTypeId());
    action.setInterest(LuSearchAction::ALL);
    action.apply(root.get());
    ASSERT_EQ(action.getPaths().getLength(), 2);
    EXPECT_EQ(action.getPaths()[0].getTail(), first);
    EXPECT_EQ(action.getPaths()[1].getTail(), last);
    EXPECT_EQ(action.getPath(), nullptr);
}

TEST_F(SearchTest, SearchingAllLooksBehindSwitches) {
    action.setNode(hidden);
    action.apply(root.get());
    EXPECT_EQ(action.getPath(), nullptr);
    action.setSearchingAll(true);
    action.apply(root.get());
    ASSERT_NE(action.getPath(), nullptr);
    EXPECT_EQ(action.getPath()->getTail(), hidden);
}

TEST_F(SearchTest, CriteriaHoldTogether) {
    last->setName("here");
    action.setType(LuCube::getClassTypeId());
    action.setName("here");
    action.apply(root.get());
    ASSERT_NE(action.getPath(), nullptr);
    EXPECT_EQ(action.getPath()->getTail(), last);
    action.setType(LuSphere::getClassTypeId());
    action.apply(root.get());
    EXPECT_EQ(action.getPath(), nullptr);
}

TEST_F(SearchTest, ExactTypeLeavesDerivedTypesOut) {
    action.setType(LuGroup::getClassTypeId(), false);
    action.apply(root.get());
    EXPECT_EQ(action.getPath(), nullptr);
    action.setType(LuGroup::getClassTypeId(), true);
    action.apply(root.get());
    ASSERT_NE(action.getPath(), nullptr);
    EXPECT_EQ(action.getPath()->getTail(), root.get());
}

TEST_F(SearchTest, NothingSetFindsNothing) {
    action.apply(root.get());
    EXPECT_EQ(action.getPath(), nullptr);
}

class MatrixTest : public ToolkitTest {
protected:
    static LuTranslation* makeTranslation(const LvVec3f& by) {
        auto* node = new LuTranslation;
        node->translation.setValue(by);
        return node;
    }
    Held<LuSeparator> root;
    LuGetMatrixAction action;
};

TEST_F(MatrixTest, PathAccumulatesWhatComesBeforeAndTheEndItself) {
    auto* separator = new LuSeparator;
    auto* end = makeTranslation({100, 0, 0});
    root->addChild(makeTranslation({1, 0, 0}));
    root->addChild(separator);
    separator->addChild(makeTranslation({10, 0, 0}));
    separator->addChild(end);
    separator->addChild(makeTranslation({1000, 0, 0}));
    LuPath path(root.get());
    path.append(separator, 1);
    path.append(end, 1);
    action.apply(path);
    EXPECT_EQ(action.getMatrix().getTranslation(), LvVec3f(111, 0, 0));
}

TEST_F(MatrixTest, SeparatorsBesideThePathAddNothingAndGroupsDo) {
    auto* beside = new LuSeparator;
    auto* group = new LuGroup;
    auto* end = new LuCube;
    beside->addChild(makeTranslation({10, 0, 0}));
    group->addChild(makeTranslation({1, 0, 0}));
    root->addChild(beside);
    root->addChild(group);
    root->addChild(end);
    LuPath path(root.get());
    path.append(end, 2);
    action.apply(path);
    EXPECT_EQ(action.getMatrix().getTranslation(), LvVec3f(1, 0, 0));
}

TEST_F(MatrixTest, GroupAtTheEndAddsNothingOfItsChildren) {
    auto* group = new LuGroup;
    group->addChild(makeTranslation({1, 0, 0}));
    root->addChild(makeTranslation({5, 0, 0}));
    root->addChild(group);
    LuPath path(root.get());
    path.append(group, 1);
    action.apply(path);
    EXPECT_EQ(action.getMatrix().getTranslation(), LvVec3f(5, 0, 0));
}

TEST_F(MatrixTest, NodeAloneGivesItsOwnTransform) {
    const Held<LuTranslation> node(makeTranslation({1, 2, 3}));
    action.apply(node.get());
    EXPECT_EQ(action.getMatrix().getTranslation(), LvVec3f(1, 2, 3));
}

TEST_F(MatrixTest, SwitchOnThePathHidesItsOtherChildren) {
    auto* switchNode = new LuSwitch;
    auto* end = new LuCube;
    switchNode->addChild(makeTranslation({10, 0, 0}));
    switchNode->addChild(end);
    switchNode->whichChild.setValue(1);
    root->addChild(switchNode);
    LuPath path(root.get());
    path.append(switchNode, 0);
    path.append(end, 1);
    action.apply(path);
    EXPECT_EQ(action.getMatrix().getTranslation(), LvVec3f(0, 0, 0));
}

TEST(PathTest, HoldsItsNodes) {
    auto* node = new LuCube;
    LuPath path(node);
    EXPECT_EQ(node->getRefCount(), 1);
    const LuPath copy = path;
    EXPECT_EQ(node->getRefCount(), 2);
    path = copy;
    EXPECT_EQ(node->getRefCount(), 2);
    path.truncate(0);
    EXPECT_EQ(path.getLength(), 0);
    EXPECT_EQ(path.getTail(), nullptr);
}

TEST(PathTest, PublicLengthHidesTheRest) {
    LuPath path(new LuCube);
    path.append(new LuSphere, 0);
    path.setNumPublic(1);
    EXPECT_EQ(path.getLength(), 1);
    EXPECT_EQ(path.getFullLength(), 2);
    EXPECT_EQ(path.getTail(), path.getHead());
}

} // namespace
