// SPDX-License-Identifier: MIT
#include "controls/LuDialogPushButton.h"
#include "layout/LuColumnDialog.h"
#include "layout/LuRowDialog.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/kits/LuNodeKitDetail.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "tests/controls/ControlTest.h"
#include "tests/host/SceneHost.h"

namespace {

/// What a program that picks in its scene learns of a panel: a button in a column in a row in it.
class PickDetailTest : public ControlTest {
protected:
    PickDetailTest() {
        m_dialog->width = 300;
        m_dialog->height = 200;
        m_button->label = "IIIII";
        m_column->addChild(m_button.get());
        m_row->addChild(m_column.get());
        m_dialog->addChild(m_row.get());
        m_scene.show(m_dialog.get());
    }

    /// Picks along the line of sight of a place.
    void pick(const LvVec3f& place, bool isAll = false) {
        m_action.setPickAll(isAll);
        m_action.setPoint(m_scene.getPixel(place));
        m_action.apply(&m_scene.getRoot());
    }
    LuPickedPoint* getPoint() { return m_action.getPickedPoint(); }

    /// What the point says of a kit: the name of the part, with "-" for a detail without one; empty without a
    /// detail.
    static std::string getPart(LuPickedPoint* point, LuBaseKit* kit) {
        const auto* const detail = static_cast<const LuNodeKitDetail*>(point->getDetail(kit));
        if (!detail)
            return "";
        EXPECT_EQ(detail->getNodeKit(), kit);
        if (!detail->getPart())
            return "-";
        EXPECT_EQ(detail->getPart(), kit->getPart(detail->getPartName(), false));
        return detail->getPartName().getString();
    }

    Held<LuTopLevelDialog> m_dialog;
    Held<LuRowDialog> m_row;
    Held<LuColumnDialog> m_column;
    Held<LuDialogPushButton> m_button;
    SceneHost m_scene;
    LuRayPickAction m_action{LvViewportRegion(SceneHost::VIEWPORT, SceneHost::VIEWPORT)};
};

TEST_F(PickDetailTest, pickOnTheButton_endsAtTheButtonAndNamesItsLook) {
    pick(m_scene.getMiddle(*m_button, "frameSep") + LvVec3f(30, 0, 0));
    ASSERT_NE(getPoint(), nullptr);
    EXPECT_EQ(getPoint()->getPath()->getTail(), m_button.get());
    EXPECT_EQ(getPart(getPoint(), m_button.get()), "released");
    EXPECT_EQ(getPart(getPoint(), m_column.get()), "");
    EXPECT_EQ(getPart(getPoint(), m_row.get()), "");
    EXPECT_EQ(getPart(getPoint(), m_dialog.get()), "");
}

TEST_F(PickDetailTest, pickOnTheLabel_isInNoPublicPart) {
    pick(m_scene.getMiddle(*m_button, "labelSep"));
    ASSERT_NE(getPoint(), nullptr);
    EXPECT_EQ(getPoint()->getPath()->getTail(), m_button.get());
    EXPECT_EQ(getPart(getPoint(), m_button.get()), "-");
}

TEST_F(PickDetailTest, pickOnTheFrame_endsAtTheDialog) {
    pick({150, -12, 1});
    ASSERT_NE(getPoint(), nullptr);
    EXPECT_EQ(getPoint()->getPath()->getTail(), m_dialog.get());
    EXPECT_EQ(getPart(getPoint(), m_dialog.get()), "frame");
}

TEST_F(PickDetailTest, pickOnTheMinimiseButton_namesItsLook) {
    pick(m_scene.getMiddle(*m_dialog, "minSep"));
    ASSERT_NE(getPoint(), nullptr);
    EXPECT_EQ(getPart(getPoint(), m_dialog.get()), "minReleased");
}

TEST_F(PickDetailTest, wholePath_isStillThereForWhoAsks) {
    pick(m_scene.getMiddle(*m_button, "frameSep") + LvVec3f(30, 0, 0));
    ASSERT_NE(getPoint(), nullptr);
    LuPath path = *getPoint()->getPath();
    EXPECT_FALSE(path.containsNode(m_button->getPart("released", false)));
    path.setNumPublic(-1);
    EXPECT_TRUE(path.containsNode(m_button->getPart("released", false)));
    EXPECT_TRUE(path.getTail()->isOfType(LuCube::getClassTypeId()));
}

TEST_F(PickDetailTest, allPointsOfALine_speakOfTheirComponents) {
    pick(m_scene.getMiddle(*m_button, "frameSep") + LvVec3f(30, 0, 0), true);
    int numButton = 0, numColumn = 0, numRow = 0, numDialog = 0;
    for (int i = 0; i < m_action.getPickedPointsListLength(); ++i) {
        LuPickedPoint* const point = m_action.getUnsortedPickedPoint(i);
        LuNode* const tail = point->getPath()->getTail();
        ASSERT_TRUE(tail->isOfType(LuPanelix::getClassTypeId()));
        EXPECT_NE(getPart(point, static_cast<LuPanelix*>(tail)), "");
        numButton += tail == m_button.get();
        numColumn += tail == m_column.get();
        numRow += tail == m_row.get();
        numDialog += tail == m_dialog.get();
    }
    // The button has its look and the frame of every component.
    EXPECT_EQ(numButton, 2);
    EXPECT_EQ(numColumn, 1);
    EXPECT_EQ(numRow, 1);
    EXPECT_EQ(numDialog, 1);
}

TEST_F(PickDetailTest, pickBesideThePanel_hasNoDetailOfIt) {
    auto* const cube = new LuCube;
    auto* const place = new LuTranslation;
    place->translation.setValue({-50, 50, 0});
    auto* const group = new LuSeparator;
    group->addChild(place);
    group->addChild(cube);
    m_scene.show(group);
    pick({-50, 50, 0});
    ASSERT_NE(getPoint(), nullptr);
    EXPECT_EQ(getPoint()->getPath()->getTail(), cube);
    EXPECT_EQ(getPart(getPoint(), m_dialog.get()), "");
}

TEST_F(PickDetailTest, disabledButton_letsTheRayThrough) {
    const LvVec3f place = m_scene.getMiddle(*m_button, "frameSep") + LvVec3f(30, 0, 0);
    m_column->enable = false;
    pick(place);
    ASSERT_NE(getPoint(), nullptr);
    EXPECT_NE(getPoint()->getPath()->getTail(), m_button.get());
}

TEST_F(PickDetailTest, collapsedPanel_isMetAtItsStripAlone) {
    m_dialog->minimized = true;
    pick({150, -100, 0});
    EXPECT_EQ(getPoint(), nullptr);
    pick({150, -10, 0});
    ASSERT_NE(getPoint(), nullptr);
    EXPECT_EQ(getPart(getPoint(), m_dialog.get()), "frame");
}

} // namespace
