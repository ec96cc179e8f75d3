// SPDX-License-Identifier: MIT
#include "auditors/LuDialogAuditor.h"
#include "auditors/LuDialogPushButtonAuditor.h"
#include "controls/LuDialogLabel.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogSeparator.h"
#include "layout/LuColumnDialog.h"
#include "layout/LuRowDialog.h"
#include "layout/LuTopLevelDialog.h"
#include "tests/controls/ControlTest.h"
#include "tests/host/SceneHost.h"

#include <functional>

namespace {

/// Does something at each press, and counts them.
class PressAuditor : public LuDialogAuditor {
public:
    void dialogPushButton(LuDialogPushButton* button) override {
        ++m_count;
        m_last = button;
        if (m_action)
            m_action(*button);
    }
    int m_count = 0;
    LuDialogPushButton* m_last = nullptr;
    std::function<void(LuDialogPushButton&)> m_action;
};

/// A panel in a scene with a button in a row of it, and a user in front.
class LuDialogPushButtonPressTest : public ControlTest {
protected:
    LuDialogPushButtonPressTest() {
        m_dialog->width = 300;
        m_dialog->height = 200;
        m_button->buttonLabel = "Press";
        m_button->label = "IIIII";
        m_row->addChild(m_button.get());
        m_dialog->addChild(m_row.get());
        m_dialog->addAuditor(&m_presses);
        m_scene.show(m_dialog.get());
    }

    int getShown(LuDialogPushButton& button) { return getSwitch(button, "frameSwitch"); }
    bool isNativePressed() {
        return (SendMessageA(m_button->getButtonWidget(), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
    }
    void click() { m_scene.click(*m_button, "frameSep"); }

    Held<LuTopLevelDialog> m_dialog;
    Held<LuRowDialog> m_row;
    Held<LuDialogPushButton> m_button;
    PressAuditor m_presses;
    SceneHost m_scene;
};

TEST_F(LuDialogPushButtonPressTest, press_showsTheButtonPressedUntilTheRelease) {
    EXPECT_TRUE(m_scene.press(*m_button, "frameSep"));
    EXPECT_EQ(getShown(*m_button), 1);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_button.get());
    EXPECT_EQ(m_presses.m_count, 0);
    m_scene.release();
    EXPECT_EQ(getShown(*m_button), 0);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
    EXPECT_EQ(m_presses.m_count, 1);
    EXPECT_EQ(m_presses.m_last, m_button.get());
}

TEST_F(LuDialogPushButtonPressTest, pressOnTheButtonsText_counts) {
    m_button->buttonLabel = "I";
    m_dialog->updateDialogBuild(0);
    m_scene.click(*m_button, "buttonLabelSep");
    EXPECT_EQ(m_presses.m_count, 1);
}

TEST_F(LuDialogPushButtonPressTest, pressOnTheLabel_doesNotOperateTheButton) {
    EXPECT_TRUE(m_scene.press(*m_button, "labelSep"));
    EXPECT_EQ(getShown(*m_button), 0);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
    m_scene.release();
    EXPECT_EQ(m_presses.m_count, 0);
}

TEST_F(LuDialogPushButtonPressTest, releaseBesideTheButton_firesAllTheSame) {
    m_scene.press(*m_button, "frameSep");
    m_scene.dragBy(0, 300);
    EXPECT_EQ(getShown(*m_button), 1);
    m_scene.release();
    EXPECT_EQ(m_presses.m_count, 1);
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f());
}

TEST_F(LuDialogPushButtonPressTest, releaseOnTheButtonAlone_firesNothing) {
    m_scene.press({390, 390, 0});
    m_scene.moveTo(m_scene.getMiddle(*m_button, "frameSep"));
    m_scene.release();
    EXPECT_EQ(m_presses.m_count, 0);
}

TEST_F(LuDialogPushButtonPressTest, ownAuditor_hidesThatOfTheDialog) {
    class Own : public LuDialogPushButtonAuditor {
    public:
        void dialogPushButton(LuDialogPushButton*) override { ++m_count; }
        int m_count = 0;
    } own;
    m_button->addAuditor(&own);
    click();
    EXPECT_EQ(own.m_count, 1);
    EXPECT_EQ(m_presses.m_count, 0);
}

TEST_F(LuDialogPushButtonPressTest, twoButtons_keepTheirPressesApart) {
    const Held<LuDialogPushButton> other;
    m_row->addChild(other.get());
    m_scene.press(*other, "frameSep");
    EXPECT_EQ(getShown(*other), 1);
    EXPECT_EQ(getShown(*m_button), 0);
    m_scene.release();
    EXPECT_EQ(m_presses.m_last, other.get());
    click();
    EXPECT_EQ(m_presses.m_last, m_button.get());
    EXPECT_EQ(m_presses.m_count, 2);
}

TEST_F(LuDialogPushButtonPressTest, buttonInAColumnInARow_isReached) {
    const Held<LuColumnDialog> column;
    const Held<LuDialogPushButton> inner;
    column->addChild(inner.get());
    m_row->addChild(column.get());
    m_scene.click(*inner, "frameSep");
    EXPECT_EQ(m_presses.m_last, inner.get());
}

TEST_F(LuDialogPushButtonPressTest, pressIn3D_showsInTheWindow) {
    LvVec2i32 size(200, 40), position;
    m_button->buildWidget(m_window, size, position, 1);
    m_scene.press(*m_button, "frameSep");
    EXPECT_TRUE(isNativePressed());
    m_scene.release();
    EXPECT_FALSE(isNativePressed());
    EXPECT_EQ(m_presses.m_count, 1);
}

TEST_F(LuDialogPushButtonPressTest, disabledRow_letsNoPressThrough) {
    m_row->enable = false;
    m_scene.press(m_scene.getMiddle(*m_button, "frameSep"));
    EXPECT_EQ(getShown(*m_button), 0);
    m_scene.release();
    EXPECT_EQ(m_presses.m_count, 0);
    m_row->enable = true;
    click();
    EXPECT_EQ(m_presses.m_count, 1);
}

TEST_F(LuDialogPushButtonPressTest, hiddenButton_cannotBePressed) {
    const LvVec3f place = m_scene.getMiddle(*m_button, "frameSep");
    m_button->show3D(0);
    m_scene.click(place);
    EXPECT_EQ(m_presses.m_count, 0);
}

TEST_F(LuDialogPushButtonPressTest, labelAndSeparator_leaveAPressToThePanelWhichIsNotDragged) {
    const Held<LuDialogLabel> label;
    label->label = "IIIII";
    const Held<LuDialogSeparator> line;
    m_row->addChild(label.get());
    m_row->addChild(line.get());
    for (LuDialogComponent* component :
         {static_cast<LuDialogComponent*>(label.get()), static_cast<LuDialogComponent*>(line.get())}) {
        LuPanelix::set3DCurrentActive(nullptr);
        m_scene.press(m_scene.getMiddle(component));
        EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_dialog.get());
        m_scene.dragBy(30, 10);
        m_scene.release();
    }
    EXPECT_EQ(m_presses.m_count, 0);
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f());
}

// A controller in the hand, instead of the mouse

TEST_F(LuDialogPushButtonPressTest, controllerAlone_operatesTheWholePanel) {
    // To the right of the panel, and turned towards what is to be operated.
    const LvVec3f hand(350, -60, 400);
    const auto aimAt = [&](const LvVec3f& place) { return LvLine::fromPoints(hand, place); };
    const auto aimAtButton = [&] { return aimAt(m_scene.getMiddle(*m_button, "frameSep")); };

    EXPECT_TRUE(m_scene.trackerButton(LuButtonEvent::DOWN, aimAtButton()));
    EXPECT_EQ(getShown(*m_button), 1);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_button.get());
    m_scene.trackerMove(aimAt({0, 400, 0}));
    EXPECT_EQ(m_presses.m_count, 0);
    EXPECT_TRUE(m_scene.trackerButton(LuButtonEvent::UP, aimAt({0, 400, 0})));
    EXPECT_EQ(getShown(*m_button), 0);
    EXPECT_EQ(m_presses.m_count, 1);

    const LvVec3f grip(100, -12, 1);
    EXPECT_TRUE(m_scene.trackerButton(LuButtonEvent::DOWN, aimAt(grip)));
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_dialog.get());
    m_scene.trackerMove(aimAt(grip + LvVec3f(-40, 25, 0)));
    m_scene.trackerButton(LuButtonEvent::UP, aimAt(grip + LvVec3f(-40, 25, 0)));
    const LvVec3f& corner = m_dialog->position3D.getValue();
    EXPECT_NEAR(corner.x, -40, 0.01F);
    EXPECT_NEAR(corner.y, -25, 0.01F);
    EXPECT_EQ(corner.z, 0);

    // The button has come along.
    m_scene.trackerButton(LuButtonEvent::DOWN, aimAtButton());
    m_scene.trackerButton(LuButtonEvent::UP, aimAtButton());
    EXPECT_EQ(m_presses.m_count, 2);

    const LvLine minimise = aimAt(m_scene.getMiddle(*m_dialog, "minSep"));
    m_scene.trackerButton(LuButtonEvent::DOWN, minimise);
    m_scene.trackerButton(LuButtonEvent::UP, minimise);
    EXPECT_TRUE(m_dialog->minimized.getValue());
}

TEST_F(LuDialogPushButtonPressTest, controllerThatPointsBesideThePanel_operatesNothing) {
    const LvLine beside = LvLine::fromPoints({0, 0, 400}, {-200, 100, 0});
    EXPECT_FALSE(m_scene.trackerButton(LuButtonEvent::DOWN, beside));
    EXPECT_FALSE(m_scene.trackerButton(LuButtonEvent::UP, beside));
    EXPECT_EQ(m_presses.m_count, 0);
}

TEST_F(LuDialogPushButtonPressTest, controllerThatPointsAwayFromThePanel_operatesNothing) {
    const LvVec3f hand(0, 0, 400);
    const LvVec3f way = m_scene.getMiddle(*m_button, "frameSep") - hand;
    EXPECT_FALSE(m_scene.trackerButton(LuButtonEvent::DOWN, LvLine::fromPoints(hand, hand - way)));
    EXPECT_EQ(getShown(*m_button), 0);
}

// What the auditors may do

TEST_F(LuDialogPushButtonPressTest, buttonRemovedByItsAuditor_isSafe) {
    m_presses.m_action = [&](LuDialogPushButton& button) { m_row->removeChild(&button); };
    click();
    EXPECT_EQ(m_row->getNumChildren(), 0);
    EXPECT_EQ(getShown(*m_button), 0);
}

TEST_F(LuDialogPushButtonPressTest, buttonThatEndsInItsAuditor_isSafe) {
    m_row->addChild(new LuDialogPushButton);
    auto* const doomed = static_cast<LuDialogPushButton*>(m_row->getChild(1));
    m_presses.m_action = [&](LuDialogPushButton&) { m_row->removeChild(1); };
    m_scene.click(*doomed, "frameSep");
    EXPECT_EQ(m_presses.m_count, 1);
    EXPECT_EQ(m_row->getNumChildren(), 1);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
}

TEST_F(LuDialogPushButtonPressTest, buttonRemovedBetweenPressAndRelease_hearsNothingMoreOfThePress) {
    m_scene.press(*m_button, "frameSep");
    m_row->removeChild(m_button.get());
    m_scene.release();
    EXPECT_EQ(m_presses.m_count, 0);
    m_row->addChild(m_button.get());
    click();
    EXPECT_EQ(m_presses.m_count, 1);
    EXPECT_EQ(getShown(*m_button), 0);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
}

TEST_F(LuDialogPushButtonPressTest, buttonThatEndsBetweenPressAndRelease_isSafe) {
    m_row->addChild(new LuDialogPushButton);
    m_scene.press(*static_cast<LuDialogPushButton*>(m_row->getChild(1)), "frameSep");
    m_row->removeChild(1);
    m_scene.release();
    m_scene.dragBy(10, 10);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
    click();
    EXPECT_EQ(m_presses.m_last, m_button.get());
}

TEST_F(LuDialogPushButtonPressTest, dialogThatEndsInItsButtonsAuditor_isSafe) {
    auto* const dialog = new LuTopLevelDialog;
    auto* const button = new LuDialogPushButton;
    dialog->addChild(button);
    dialog->addAuditor(&m_presses);
    SceneHost scene(dialog);
    m_presses.m_action = [&](LuDialogPushButton&) { scene.getRoot().removeChild(dialog); };
    scene.press(*button, "frameSep");
    scene.release();
    EXPECT_EQ(m_presses.m_count, 1);
    EXPECT_FALSE(scene.press({50, -50, 0}));
}

TEST_F(LuDialogPushButtonPressTest, auditorThatAddsAButton_rebuildsThePanel) {
    m_presses.m_action = [&](LuDialogPushButton&) { m_row->addChild(new LuDialogPushButton); };
    click();
    ASSERT_EQ(m_row->getNumChildren(), 2);
    EXPECT_TRUE(m_row->getChild(1)->isBuilt3D());
    m_presses.m_action = nullptr;
    m_scene.click(*static_cast<LuDialogPushButton*>(m_row->getChild(1)), "frameSep");
    EXPECT_EQ(m_presses.m_last, m_row->getChild(1));
}

TEST_F(LuDialogPushButtonPressTest, pressWhilePressed_firesOncePerRelease) {
    m_scene.press(*m_button, "frameSep");
    m_scene.press(*m_button, "frameSep");
    m_scene.release();
    EXPECT_EQ(m_presses.m_count, 1);
    EXPECT_EQ(getShown(*m_button), 0);
}

TEST_F(LuDialogPushButtonPressTest, pressThatReenters_isSafe) {
    m_presses.m_action = [&](LuDialogPushButton&) {
        if (m_presses.m_count == 1)
            click();
    };
    click();
    EXPECT_EQ(m_presses.m_count, 2);
    EXPECT_EQ(getShown(*m_button), 0);
}

} // namespace
