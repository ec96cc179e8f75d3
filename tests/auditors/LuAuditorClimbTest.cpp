// SPDX-License-Identifier: MIT
#include "auditors/LuDialogAuditor.h"
#include "auditors/LuDialogPushButtonAuditor.h"
#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogLabel.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogRealSlider.h"
#include "layout/LuRowDialog.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/base/LuPreferences.h"
#include "tests/host/TestHost.h"
#include "tests/host/ToolkitTest.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using Log = std::vector<std::string>;

/// Writes its name and the button's text to a log.
class LoggingDialogAuditor : public LuDialogAuditor {
public:
    LoggingDialogAuditor(std::string name, Log& log) : m_name(std::move(name)), m_log(log) {}
    void dialogPushButton(LuDialogPushButton* button) override {
        m_log.push_back(m_name + ":" + button->buttonLabel.getValue().str());
        if (m_then)
            m_then();
    }
    std::function<void()> m_then;

private:
    std::string m_name;
    Log& m_log;
};

/// The same for one button.
class LoggingButtonAuditor : public LuDialogPushButtonAuditor {
public:
    LoggingButtonAuditor(std::string name, Log& log) : m_name(std::move(name)), m_log(log) {}
    void dialogPushButton(LuDialogPushButton*) override {
        m_log.push_back(m_name);
        if (m_then)
            m_then();
    }
    std::function<void()> m_then;

private:
    std::string m_name;
    Log& m_log;
};

/// A dialog with a button in a group, and another beside the group.
class LuAuditorClimbTest : public testing::Test {
protected:
    LuAuditorClimbTest() {
        LuPanelix::init();
        m_dialog = new LuTopLevelDialog;
        m_dialog->ref();
        m_group = new LuRowDialog;
        m_inside = new LuDialogPushButton;
        m_inside->buttonLabel = "inside";
        m_beside = new LuDialogPushButton;
        m_beside->buttonLabel = "beside";
        m_group->addChild(m_inside);
        m_dialog->addChild(m_group);
        m_dialog->addChild(m_beside);
    }
    ~LuAuditorClimbTest() override {
        m_dialog->unref();
        LuPreferences::reset("DEBUG_PANELIX_AUDITORS");
        LuPanelix::finish();
    }

    LuTopLevelDialog* m_dialog;
    LuRowDialog* m_group;
    LuDialogPushButton* m_inside;
    LuDialogPushButton* m_beside;
    Log m_log;
    LoggingDialogAuditor m_a{"a", m_log};
    LoggingDialogAuditor m_b{"b", m_log};
    LoggingButtonAuditor m_x{"x", m_log};
    LoggingButtonAuditor m_y{"y", m_log};
};

TEST_F(LuAuditorClimbTest, sameAuditorAddedTwice_isCalledOnce) {
    m_inside->addAuditor(&m_x);
    m_inside->addAuditor(&m_x);
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"x"}));
}

TEST_F(LuAuditorClimbTest, componentsOwnAuditor_hidesItFromTheDialogs) {
    m_dialog->addAuditor(&m_a);
    m_inside->addAuditor(&m_x);
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"x"}));
}

TEST_F(LuAuditorClimbTest, groupsAuditor_hidesWhatIsBelowFromTheDialogs) {
    m_dialog->addAuditor(&m_a);
    m_group->addAuditor(&m_b);
    m_inside->applyDlgCptAuditor();
    m_beside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"b:inside", "a:beside"}));
}

TEST_F(LuAuditorClimbTest, severalAuditors_areCalledInTheOrderInWhichTheyCame) {
    m_dialog->addAuditor(&m_b);
    m_dialog->addAuditor(&m_a);
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"b:inside", "a:inside"}));
}

TEST_F(LuAuditorClimbTest, lastAuditorRemoved_letsTheEventClimbAgain) {
    m_dialog->addAuditor(&m_a);
    m_inside->addAuditor(&m_x);
    m_inside->removeAuditor(&m_x);
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"a:inside"}));
}

TEST_F(LuAuditorClimbTest, removingWhatWasNeverAdded_doesNothing) {
    m_inside->removeAuditor(&m_x);
    m_dialog->removeAuditor(&m_a);
    m_inside->addAuditor(&m_y);
    m_inside->removeAuditor(&m_x);
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"y"}));
}

TEST_F(LuAuditorClimbTest, auditorThatRemovesItself_shiftsTheOthersForThisEvent) {
    m_inside->addAuditor(&m_x);
    m_inside->addAuditor(&m_y);
    m_x.m_then = [&] { m_inside->removeAuditor(&m_x); };
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"x"}));
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"x", "y"}));
}

TEST_F(LuAuditorClimbTest, afterAnAuditorRemovedItself_theLastOneRemovedLetsTheEventClimb) {
    m_dialog->addAuditor(&m_a);
    m_inside->addAuditor(&m_x);
    m_inside->addAuditor(&m_y);
    m_x.m_then = [&] { m_inside->removeAuditor(&m_x); };
    m_inside->applyDlgCptAuditor();
    m_inside->removeAuditor(&m_y);
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"x", "a:inside"}));
}

TEST_F(LuAuditorClimbTest, dialogAuditorThatRemovesAnother_isSafe) {
    m_dialog->addAuditor(&m_a);
    m_dialog->addAuditor(&m_b);
    m_a.m_then = [&] { m_dialog->removeAuditor(&m_b); };
    m_inside->applyDlgCptAuditor();
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"a:inside", "a:inside"}));
}

TEST_F(LuAuditorClimbTest, auditorAddedDuringACall_waitsForTheNextEvent) {
    m_inside->addAuditor(&m_x);
    m_x.m_then = [&] { m_inside->addAuditor(&m_y); };
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"x"}));
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"x", "x", "y"}));
}

TEST_F(LuAuditorClimbTest, auditorThatEndsTheComponent_isSafe) {
    m_inside->addAuditor(&m_x);
    m_inside->addAuditor(&m_y);
    m_x.m_then = [&] { m_group->removeChild(m_inside); };
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"x", "y"}));
    EXPECT_EQ(m_group->getNumChildren(), 0);
}

TEST_F(LuAuditorClimbTest, firstOfTwoDialogAuditorsThatEndsTheComponent_isSafe) {
    m_dialog->addAuditor(&m_a);
    m_dialog->addAuditor(&m_b);
    m_a.m_then = [&] { m_group->removeChild(m_inside); };
    m_inside->applyDlgCptAuditor();
    EXPECT_EQ(m_log, Log({"a:inside", "b:inside"}));
    EXPECT_EQ(m_group->getNumChildren(), 0);
}

TEST_F(LuAuditorClimbTest, auditorThatEndsTheComponentWhileItIsReportedAgain_isSafe) {
    m_dialog->addAuditor(&m_a);
    m_dialog->addAuditor(&m_b);
    m_a.m_then = [&] { m_group->removeChild(0); };
    m_dialog->applyAuditors();
    EXPECT_EQ(m_log, Log({"a:inside", "b:inside", "a:beside", "b:beside"}));
}

TEST_F(LuAuditorClimbTest, auditorThatEndsTheGroupWhileItIsReportedAgain_isSafe) {
    m_dialog->addAuditor(&m_a);
    m_a.m_then = [&] {
        if (m_dialog->getNumChildren() == 2)
            m_dialog->removeChild(m_group);
    };
    m_dialog->applyAuditors();
    EXPECT_EQ(m_log[0], "a:inside");
    EXPECT_EQ(m_dialog->getNumChildren(), 1);
}

TEST_F(LuAuditorClimbTest, componentThatOutlivesItsDialog_isSilent) {
    const Held<LuDialogPushButton> button;
    {
        const Held<LuTopLevelDialog> dialog;
        dialog->addAuditor(&m_a);
        dialog->addChild(button.get());
        dialog->removeChild(button.get());
        button->applyDlgCptAuditor();
        EXPECT_EQ(m_log.size(), 1u);
    }
    button->applyDlgCptAuditor();
    EXPECT_EQ(m_log.size(), 1u);
}

TEST_F(LuAuditorClimbTest, componentWithoutAParent_isSilent) {
    const Held<LuDialogPushButton> alone;
    alone->applyDlgCptAuditor();
    EXPECT_TRUE(getPostedMessages().empty());
}

TEST_F(LuAuditorClimbTest, freeGroupThatWasNeverBuiltIn3D_isSilent) {
    LuPreferences::setString("DEBUG_PANELIX_AUDITORS", "1");
    const Held<LuRowDialog> group;
    auto* const button = new LuDialogPushButton;
    group->addChild(button);
    button->applyDlgCptAuditor();
    EXPECT_TRUE(getPostedMessages().empty());
}

TEST_F(LuAuditorClimbTest, nobodyListens_nothingHappens) {
    m_inside->applyDlgCptAuditor();
    EXPECT_TRUE(getPostedMessages().empty());
}

TEST_F(LuAuditorClimbTest, nobodyListensAndTheSettingIsThere_oneMessageSaysWhatWasPressed) {
    LuPreferences::setString("DEBUG_PANELIX_AUDITORS", "");
    m_inside->label = "Here:";
    m_inside->applyDlgCptAuditor();
    ASSERT_EQ(getPostedMessages().size(), 1u);
    ASSERT_EQ(getPostedInfos().size(), 1u);
    EXPECT_EQ(getPostedInfos()[0].where, "LuDialogAuditor::dialogPushButton");
    EXPECT_EQ(getPostedInfos()[0].text,
              "WARNING ! The DialogAuditor does not define the LuDialogPushButton component :"
              "\n\t\t -> label \"Here:\"\n\t\t -> buttonLabel \"inside\"");
}

TEST_F(LuAuditorClimbTest, nobodyListensToACheckBox_theMessageSaysItsTexts) {
    LuPreferences::setString("DEBUG_PANELIX_AUDITORS", "1");
    auto* const box = new LuDialogCheckBox;
    box->label = "Here:";
    box->onString = "yes";
    box->offString = "no";
    m_group->addChild(box);
    box->applyDlgCptAuditor();
    ASSERT_EQ(getPostedInfos().size(), 1u);
    EXPECT_EQ(getPostedInfos()[0].where, "LuDialogAuditor::dialogCheckBox");
    EXPECT_EQ(getPostedInfos()[0].text,
              "WARNING ! The DialogAuditor does not define the LuDialogCheckBox component :"
              "\n\t\t -> label \"Here:\"\n\t\t -> onString \"yes\"\n\t\t -> offString \"no\"");
}

TEST_F(LuAuditorClimbTest, nobodyListensToASlider_theMessageSaysItsValue) {
    LuPreferences::setString("DEBUG_PANELIX_AUDITORS", "1");
    auto* const whole = new LuDialogIntegerSlider;
    whole->label = "Size";
    whole->value = 12;
    m_group->addChild(whole);
    whole->applyDlgCptAuditor();
    auto* const real = new LuDialogRealSlider;
    real->label = "Share";
    real->value = 0.5F;
    real->format = "%.1f";
    m_group->addChild(real);
    real->applyDlgCptAuditor();
    ASSERT_EQ(getPostedInfos().size(), 2u);
    EXPECT_EQ(getPostedInfos()[0].where, "LuDialogAuditor::dialogIntegerSlider");
    EXPECT_EQ(getPostedInfos()[0].text,
              "WARNING ! The DialogAuditor does not define the LuDialogIntegerSlider component :"
              "\n\t\t -> label \"Size\"12");
    EXPECT_EQ(getPostedInfos()[1].where, "LuDialogAuditor::dialogRealSlider");
    EXPECT_EQ(getPostedInfos()[1].text,
              "WARNING ! The DialogAuditor does not define the LuDialogRealSlider component :"
              "\n\t\t -> label \"Share\"\n\t\t -> value \"0.5\"");
}

TEST_F(LuAuditorClimbTest, auditorThatOverridesNothing_takesTheEventAndSaysSo) {
    class Silent : public LuDialogAuditor {};
    Silent silent;
    LuPreferences::setString("DEBUG_PANELIX_AUDITORS", "1");
    m_dialog->addAuditor(&m_a);
    m_group->addAuditor(&silent);
    m_inside->applyDlgCptAuditor();
    EXPECT_TRUE(m_log.empty());
    EXPECT_EQ(getPostedInfos().size(), 1u);
}

TEST_F(LuAuditorClimbTest, componentThatNoTestKnows_isNotReported) {
    auto* const label = new LuDialogLabel;
    m_dialog->addChild(label);
    m_dialog->addAuditor(&m_a);
    m_dialog->applyAuditor(label);
    EXPECT_TRUE(m_log.empty());
}

TEST_F(LuAuditorClimbTest, refiring_reportsEveryControlInOrder) {
    m_dialog->addAuditor(&m_a);
    m_inside->addAuditor(&m_x);
    m_dialog->applyAuditors();
    EXPECT_EQ(m_log, Log({"a:inside", "a:beside"}));
}

TEST_F(LuAuditorClimbTest, emptyId_findsTheFirstComponentWithoutOne) {
    m_group->auditorID = "group";
    EXPECT_EQ(m_dialog->searchForAuditorId(""), m_inside);
    m_inside->auditorID = "Inside";
    EXPECT_EQ(m_dialog->searchForAuditorId("Inside"), m_inside);
    EXPECT_EQ(m_dialog->searchForAuditorId("inside"), nullptr);
    EXPECT_EQ(m_dialog->searchForAuditorId(""), m_beside);
}

} // namespace
