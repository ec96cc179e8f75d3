// SPDX-License-Identifier: MIT
#include "auditors/LuDialogAuditor.h"
#include "auditors/LuDialogCheckBoxAuditor.h"
#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogPushButton.h"
#include "layout/LuRowDialog.h"
#include "layout/LuTopLevelDialog.h"
#include "tests/controls/ControlTest.h"
#include "tests/host/SceneHost.h"

#include <functional>

namespace {

using Lines = std::vector<std::string>;

/// Does something at each click, and counts them.
class ClickAuditor : public LuDialogAuditor {
public:
    void dialogCheckBox(LuDialogCheckBox* checkBox) override {
        ++m_count;
        m_last = checkBox;
        m_state = checkBox->state.getValue();
        if (m_action)
            m_action(*checkBox);
    }
    int m_count = 0;
    LuDialogCheckBox* m_last = nullptr;
    bool m_state = false;
    std::function<void(LuDialogCheckBox&)> m_action;
};

/// A panel in a scene with a check box in a row of it, and a user in front.
class LuDialogCheckBoxPressTest : public ControlTest {
protected:
    LuDialogCheckBoxPressTest() {
        m_dialog->width = 300;
        m_dialog->height = 200;
        m_box->onString = "IIIII";
        m_box->label = "IIIII";
        m_row->addChild(m_box.get());
        m_dialog->addChild(m_row.get());
        m_dialog->addAuditor(&m_clicks);
        m_scene.show(m_dialog.get());
    }

    int getShown(LuDialogCheckBox& box) { return getSwitch(box, "stateSwitch"); }
    void click(const char* part = "frameSep") { m_scene.click(*m_box, part); }

    Held<LuTopLevelDialog> m_dialog;
    Held<LuRowDialog> m_row;
    Held<LuDialogCheckBox> m_box;
    ClickAuditor m_clicks;
    SceneHost m_scene;
};

TEST_F(LuDialogCheckBoxPressTest, release_turnsTheStateAndFires) {
    EXPECT_TRUE(m_scene.press(*m_box, "frameSep"));
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(m_clicks.m_count, 0);
    m_scene.release();
    EXPECT_TRUE(m_box->state.getValue());
    EXPECT_EQ(getShown(*m_box), 1);
    EXPECT_EQ(m_clicks.m_count, 1);
    EXPECT_EQ(m_clicks.m_last, m_box.get());
    EXPECT_TRUE(m_clicks.m_state);
    click();
    EXPECT_FALSE(m_clicks.m_state);
    EXPECT_EQ(getShown(*m_box), 0);
    EXPECT_EQ(m_clicks.m_count, 2);
}

TEST_F(LuDialogCheckBoxPressTest, pressOnTheMark_counts) {
    click("stateSep");
    EXPECT_TRUE(m_box->state.getValue());
    // The other mark is in its place.
    click("stateSep");
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(m_clicks.m_count, 2);
}

TEST_F(LuDialogCheckBoxPressTest, pressOnTheText_counts) {
    m_box->onString = "I";
    m_dialog->updateDialogBuild(0);
    click("onOffStringSep");
    EXPECT_TRUE(m_box->state.getValue());
    EXPECT_EQ(m_clicks.m_count, 1);
}

TEST_F(LuDialogCheckBoxPressTest, pressThatBeganOnTheLabel_doesNothing) {
    m_scene.press(*m_box, "labelSep");
    m_scene.release();
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(m_clicks.m_count, 0);
    m_scene.press(*m_box, "labelSep");
    m_scene.moveTo(m_scene.getMiddle(*m_box, "frameSep"));
    m_scene.release();
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(m_clicks.m_count, 0);
}

TEST_F(LuDialogCheckBoxPressTest, releaseBesideTheBox_countsAllTheSame) {
    m_scene.press(*m_box, "frameSep");
    m_scene.dragBy(0, 300);
    m_scene.release();
    EXPECT_TRUE(m_box->state.getValue());
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f());
}

TEST_F(LuDialogCheckBoxPressTest, click_takesTheActivityFromAnotherComponentAndKeepsNone) {
    const Held<LuDialogPushButton> active;
    LuPanelix::set3DCurrentActive(active.get());
    m_scene.press(*m_box, "frameSep");
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), active.get());
    m_scene.release();
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
}

TEST_F(LuDialogCheckBoxPressTest, clickIn3D_showsInTheWindow) {
    m_box->onString = "Yes";
    m_box->offString = "No";
    LvVec2i32 size(200, 40), position;
    m_box->buildWidget(m_window, size, position, 1);
    const HWND native = m_box->getCheckBoxWidget();
    click();
    EXPECT_EQ(SendMessageA(native, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(getText(native), "Yes");
    click();
    EXPECT_EQ(SendMessageA(native, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(getText(native), "No");
    EXPECT_EQ(m_clicks.m_count, 2);
}

TEST_F(LuDialogCheckBoxPressTest, auditor_seesTheNewStateAndText) {
    m_box->onString = "Yes";
    m_box->offString = "No";
    Lines text;
    m_clicks.m_action = [&](LuDialogCheckBox& box) {
        text = getLines(*getChildAs<LuText3>(box, "onOffStringSep", -1));
    };
    click();
    EXPECT_TRUE(m_clicks.m_state);
    EXPECT_EQ(text, Lines({"Yes"}));
}

TEST_F(LuDialogCheckBoxPressTest, stateSetByTheAuditorOfA3DClick_isShown) {
    m_clicks.m_action = [](LuDialogCheckBox& box) { box.state = false; };
    click();
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(getShown(*m_box), 0);
    EXPECT_EQ(m_clicks.m_count, 1);
}

TEST_F(LuDialogCheckBoxPressTest, ownAuditor_hidesThatOfTheDialog) {
    class Own : public LuDialogCheckBoxAuditor {
    public:
        void dialogCheckBox(LuDialogCheckBox*) override { ++m_count; }
        int m_count = 0;
    } own;
    m_box->addAuditor(&own);
    click();
    EXPECT_EQ(own.m_count, 1);
    EXPECT_EQ(m_clicks.m_count, 0);
    m_box->removeAuditor(&own);
    click();
    EXPECT_EQ(own.m_count, 1);
    EXPECT_EQ(m_clicks.m_count, 1);
}

TEST_F(LuDialogCheckBoxPressTest, twoBoxes_keepTheirStatesApart) {
    const Held<LuDialogCheckBox> other;
    m_row->addChild(other.get());
    m_scene.click(*other, "frameSep");
    EXPECT_TRUE(other->state.getValue());
    EXPECT_EQ(getShown(*other), 1);
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(getShown(*m_box), 0);
    EXPECT_EQ(m_clicks.m_last, other.get());
}

TEST_F(LuDialogCheckBoxPressTest, disabledRow_letsNoClickThrough) {
    m_row->enable = false;
    m_scene.click(m_scene.getMiddle(*m_box, "frameSep"));
    EXPECT_FALSE(m_box->state.getValue());
    m_row->enable = true;
    click();
    EXPECT_TRUE(m_box->state.getValue());
    EXPECT_EQ(m_clicks.m_count, 1);
}

// What the auditors may do

TEST_F(LuDialogCheckBoxPressTest, boxThatEndsInItsAuditor_isSafe) {
    m_row->addChild(new LuDialogCheckBox);
    auto* const doomed = static_cast<LuDialogCheckBox*>(m_row->getChild(1));
    m_clicks.m_action = [&](LuDialogCheckBox&) { m_row->removeChild(1); };
    m_scene.click(*doomed, "frameSep");
    EXPECT_EQ(m_clicks.m_count, 1);
    EXPECT_EQ(m_row->getNumChildren(), 1);
}

TEST_F(LuDialogCheckBoxPressTest, boxThatEndsInTheAuditorOfItsWindow_isSafe) {
    m_row->addChild(new LuDialogCheckBox);
    auto* const doomed = static_cast<LuDialogCheckBox*>(m_row->getChild(1));
    LvVec2i32 size(200, 40), position;
    doomed->buildWidget(m_window, size, position, 1);
    const HWND native = doomed->getCheckBoxWidget();
    m_clicks.m_action = [&](LuDialogCheckBox&) { m_row->removeChild(1); };
    SendMessageA(native, BM_CLICK, 0, 0);
    EXPECT_EQ(m_clicks.m_count, 1);
    EXPECT_FALSE(IsWindow(native));
}

TEST_F(LuDialogCheckBoxPressTest, boxRemovedBetweenPressAndRelease_hearsNothingMoreOfThePress) {
    m_scene.press(*m_box, "frameSep");
    m_row->removeChild(m_box.get());
    m_scene.release();
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(m_clicks.m_count, 0);
    m_row->addChild(m_box.get());
    click();
    EXPECT_TRUE(m_box->state.getValue());
}

TEST_F(LuDialogCheckBoxPressTest, finishWithoutAPress_doesNothing) {
    m_box->draggerFinishCallback3D();
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(m_clicks.m_count, 0);
}

} // namespace
