// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/layout/DialogTest.h"

namespace {

class LuTopLevelDialog3DTest : public DialogTest {
protected:
    LuTopLevelDialog* buildDialog(const char* text) {
        LuTopLevelDialog* const dialog = read<LuTopLevelDialog>(text);
        if (dialog)
            buildIn3D(dialog);
        return dialog;
    }

    /// The first translation below a part, or the kit itself.
    static LvVec3f getTranslation(LuTopLevelDialog* dialog, const char* part) {
        auto* const group = static_cast<LuGroup*>(dialog->getPart(part, false));
        for (int i = 0; i < group->getNumChildren(); ++i) {
            if (group->getChild(i)->isOfType(LuTranslation::getClassTypeId()))
                return static_cast<LuTranslation*>(group->getChild(i))->translation.getValue();
        }
        return {};
    }

    static int getShown(LuPanelix* component) {
        return static_cast<LuSwitch*>(component->getPart("geomSwitch", true))->whichChild.getValue();
    }
};

constexpr const char* s_dialog = "TopLevelDialog { label \"Title\" width 300 height 200 position3D 10 20 5"
                                 " DialogComponent { } }";

TEST_F(LuTopLevelDialog3DTest, firstBoundingBox_buildsTheGeometryAndNoWindows) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    EXPECT_TRUE(dialog->isBuilt3D());
    EXPECT_FALSE(dialog->isBuilt2D());
    EXPECT_TRUE(dialog->isNotifyEnabled());
    EXPECT_EQ(dialog->getTopLevelSize(), LvVec3f(300, 200, 1));
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(160, -120, 5));
    EXPECT_EQ(getTranslation(dialog, "minSep"), LvVec3f(138, 88, 0));
}

TEST_F(LuTopLevelDialog3DTest, headlessToolkit_buildsInTheScene) {
    LuDBImpl::m_isHeadless = true;
    LuTopLevelDialog* const dialog = read<LuTopLevelDialog>(s_dialog);
    dialog->buildDialog(nullptr, 0);
    EXPECT_TRUE(dialog->isBuilt3D());
    EXPECT_EQ(dialog->getBaseWidget(), nullptr);
}

TEST_F(LuTopLevelDialog3DTest, windowsAfterTheGeometry_areAddedToIt) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->buildDialog(nullptr, 0);
    EXPECT_TRUE(IsWindow(dialog->getBaseWidget()));
    EXPECT_TRUE(dialog->isBuilt3D());
}

TEST_F(LuTopLevelDialog3DTest, title_isCentredOnALineBelowTheTop) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    const LvVec3f place = getTranslation(dialog, "labelSep");
    EXPECT_EQ(place.x, 12 - 150);
    EXPECT_NEAR(place.y, 88, 6);
}

TEST_F(LuTopLevelDialog3DTest, children_standInFrontOfTheFrame) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    const LvVec3f offset = dialog->getChild(0)->get3DParentTranslation();
    EXPECT_EQ(offset.x, 14);
    EXPECT_EQ(offset.y, -43);
    EXPECT_GT(offset.z, 5);
}

TEST_F(LuTopLevelDialog3DTest, movedDialog_takesItsChildrenAlong) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->position3D = LvVec3f(100, 50, 0);
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(250, -150, 0));
    EXPECT_EQ(dialog->getChild(0)->get3DParentTranslation().x, 104);
}

TEST_F(LuTopLevelDialog3DTest, movedDialogOfAnOddSize_standsOnWholeUnits) {
    LuTopLevelDialog* const dialog = buildDialog("TopLevelDialog { width 301 height 201 }");
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(150.5F, -100.5F, 0));
    dialog->position3D = LvVec3f(10, 0, 0);
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(160, -100, 0));
}

TEST_F(LuTopLevelDialog3DTest, movedDialogThatHidesItsChildren_leavesThem) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->hideChildren = true;
    dialog->position3D = LvVec3f(100, 50, 0);
    EXPECT_EQ(dialog->getChild(0)->get3DParentTranslation().x, 14);
}

TEST_F(LuTopLevelDialog3DTest, minimizedByTheProgram_collapsesToAStripWhereItStands) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->minimized = true;
    EXPECT_EQ(dialog->getTopLevelSize(), LvVec3f(300, 20, 1));
    EXPECT_EQ(dialog->minimized3DPosition.getValue(), LvVec3f(10, 20, 5));
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(160, -30, 5));
    EXPECT_EQ(getTranslation(dialog, "minSep"), LvVec3f(138, 0, 0));
    EXPECT_EQ(getShown(dialog->getChild(0)), LuSwitch::SHOW_NONE);
}

TEST_F(LuTopLevelDialog3DTest, minimizedFromTheStart_isBuiltAsAStrip) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { width 300 height 200 minimized TRUE position3D 10 20 5"
                    " minimized3DPosition 70 80 0 DialogComponent { } }");
    EXPECT_EQ(dialog->getTopLevelSize(), LvVec3f(300, 20, 1));
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(220, -90, 0));
    EXPECT_EQ(getShown(dialog->getChild(0)), LuSwitch::SHOW_NONE);
    dialog->minimized = false;
    EXPECT_EQ(dialog->getTopLevelSize(), LvVec3f(300, 200, 1));
    EXPECT_EQ(getShown(dialog->getChild(0)), LuSwitch::SHOW_ALL);
}

TEST_F(LuTopLevelDialog3DTest, childAddedToAStrip_isHiddenUntilItIsRestored) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->minimized = true;
    auto* const child = new LuRowDialog;
    dialog->addChild(child);
    EXPECT_EQ(dialog->getTopLevelSize(), LvVec3f(300, 20, 1));
    EXPECT_EQ(getShown(child), LuSwitch::SHOW_NONE);
    dialog->minimized = false;
    EXPECT_EQ(getShown(child), LuSwitch::SHOW_ALL);
}

TEST_F(LuTopLevelDialog3DTest, restoredDialog_isAsBefore) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->minimized = true;
    dialog->minimized = false;
    EXPECT_EQ(dialog->getTopLevelSize(), LvVec3f(300, 200, 1));
    EXPECT_EQ(getShown(dialog->getChild(0)), LuSwitch::SHOW_ALL);
}

TEST_F(LuTopLevelDialog3DTest, independentPositions_moveAlone) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->minimized = true;
    dialog->minimized3DPosition = LvVec3f(70, 80, 0);
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(220, -90, 0));
    EXPECT_EQ(dialog->position3D.getValue(), LvVec3f(10, 20, 5));
}

TEST_F(LuTopLevelDialog3DTest, dependentPositions_followTheOneInUse) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->independentMinimizedPosition = false;
    EXPECT_EQ(dialog->minimized3DPosition.getValue(), LvVec3f(10, 20, 5));
    dialog->minimized = true;
    dialog->minimized3DPosition = LvVec3f(70, 80, 0);
    EXPECT_EQ(dialog->position3D.getValue(), LvVec3f(70, 80, 0));
    dialog->minimized = false;
    dialog->position3D = LvVec3f(1, 2, 3);
    EXPECT_EQ(dialog->minimized3DPosition.getValue(), LvVec3f(1, 2, 3));
    dialog->independentMinimizedPosition = true;
    dialog->position3D = LvVec3f(4, 5, 6);
    EXPECT_EQ(dialog->minimized3DPosition.getValue(), LvVec3f(1, 2, 3));
}

TEST_F(LuTopLevelDialog3DTest, connectionsOfTheProgram_outliveAChangeOfIndependence) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    LuSFVec3f place;
    dialog->position3D.connectFrom(&place);
    dialog->independentMinimizedPosition = false;
    dialog->independentMinimizedPosition = true;
    EXPECT_EQ(dialog->position3D.getConnectedField(), &place);
    EXPECT_FALSE(dialog->minimized3DPosition.isConnected());
}

TEST_F(LuTopLevelDialog3DTest, restoredDialogThatHidesItsChildren_leavesThemWhereTheyWere) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->hideChildren = true;
    dialog->minimized = true;
    dialog->position3D = LvVec3f(100, 50, 0);
    dialog->minimized = false;
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(250, -150, 0));
    EXPECT_EQ(dialog->getChild(0)->get3DParentTranslation().x, 14);
    EXPECT_EQ(getShown(dialog->getChild(0)), LuSwitch::SHOW_ALL);
}

TEST_F(LuTopLevelDialog3DTest, secondMinimizing_findsTheStripWhereItWasLeft) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->minimized = true;
    dialog->minimized3DPosition = LvVec3f(70, 80, 0);
    dialog->minimized = false;
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(160, -120, 5));
    dialog->minimized = true;
    EXPECT_EQ(getTranslation(dialog, "geomSwitch"), LvVec3f(220, -90, 0));
}

TEST_F(LuTopLevelDialog3DTest, title_movesToTheMiddleOfTheStrip) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    const LvVec3f before = getTranslation(dialog, "labelSep");
    dialog->minimized = true;
    EXPECT_EQ(getTranslation(dialog, "labelSep"), before - LvVec3f(0, 88, 0));
}

TEST_F(LuTopLevelDialog3DTest, hiddenDialog_hidesItsChildrenAndShowsThemAgain) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->show3D(0);
    EXPECT_EQ(getShown(dialog), LuSwitch::SHOW_NONE);
    EXPECT_EQ(getShown(dialog->getChild(0)), LuSwitch::SHOW_NONE);
    dialog->show3D(1);
    EXPECT_EQ(getShown(dialog), LuSwitch::SHOW_ALL);
    EXPECT_EQ(getShown(dialog->getChild(0)), LuSwitch::SHOW_ALL);
}

/// Stands for a menu bar.
class Bar : public LuTopComponent {
public:
    LuMenuBar* asMenuBar() override { return reinterpret_cast<LuMenuBar*>(this); }
    void show3DChildren(int show) override { m_shown = show; }
    int m_shown = 1;
};

TEST_F(LuTopLevelDialog3DTest, menuBar_putsTheChildren18UnitsLowerAndIsClosedByTheStrip) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    const LvVec3f before = dialog->getChild(0)->get3DParentTranslation();
    auto* const bar = new Bar;
    dialog->insertChild(bar, 0);
    EXPECT_EQ(dialog->getChild(1)->get3DParentTranslation(), before - LvVec3f(0, 18, 0));
    dialog->minimized = true;
    EXPECT_EQ(bar->m_shown, 0);
}

TEST_F(LuTopLevelDialog3DTest, menuBar_hasNoPartInTheSpacing) {
    LuTopLevelDialog* const dialog =
        read<LuTopLevelDialog>("TopLevelDialog { rowSpacing 10 DialogComponent { } DialogComponent { } }");
    const int before = getSizesOf(dialog).size.y;
    dialog->insertChild(new Bar, 0);
    EXPECT_EQ(getSizesOf(dialog).size.y, before + GetSystemMetrics(SM_CYMENU));
}

TEST_F(LuTopLevelDialog3DTest, newSkin_keepsThePartsAndIsLoaded) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    const struct {
        const char* part;
        const char* name;
    } rows[] = {{"frame", "TopLevelDialogFrame"},
                {"minReleased", "TopLevelDialogMinReleased"},
                {"minPressed", "TopLevelDialogMinPressed"}};
    LuTopLevelDialog::setSkinLoaded(0);
    LuTopLevelDialog::change3DSkin();
    EXPECT_TRUE(LuTopLevelDialog::isSkinLoaded());
    for (const auto& row : rows) {
        LuNode* const group = dialog->getPart(row.part, false);
        EXPECT_EQ(LuNode::getByName(row.name), group) << row.part;
        EXPECT_GT(static_cast<LuGroup*>(group)->getNumChildren(), 0) << row.part;
    }
}

TEST_F(LuTopLevelDialog3DTest, positionsOfADialogThatIsNotBuilt_areHarmless) {
    LuTopLevelDialog* const dialog = read<LuTopLevelDialog>(s_dialog);
    dialog->buildDialog(nullptr, 0);
    dialog->position3D = LvVec3f(1, 2, 3);
    dialog->minimized = true;
    EXPECT_EQ(dialog->minimized3DPosition.getValue(), LvVec3f(1, 2, 3));
    EXPECT_EQ(dialog->getTopLevelSize(), LvVec3f());
}

TEST_F(LuTopLevelDialog3DTest, hiddenBeforeTheBuild_staysHidden) {
    LuTopLevelDialog* const dialog = read<LuTopLevelDialog>(s_dialog);
    dialog->show3D(0);
    buildIn3D(dialog);
    EXPECT_EQ(getShown(dialog), LuSwitch::SHOW_NONE);
    EXPECT_EQ(getShown(dialog->getChild(0)), LuSwitch::SHOW_NONE);
}

TEST_F(LuTopLevelDialog3DTest, childAddedAfterTheBuild_isBuilt) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    auto* const child = new LuRowDialog;
    dialog->addChild(child);
    EXPECT_TRUE(child->isBuilt3D());
}

TEST_F(LuTopLevelDialog3DTest, secondBuild_makesNoFurtherNodes) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    auto* const geometry = static_cast<LuGroup*>(dialog->getPart("geomSwitch", false));
    const int before = geometry->getNumChildren();
    dialog->updateDialogBuild(0);
    EXPECT_EQ(geometry->getNumChildren(), before);
}

TEST_F(LuTopLevelDialog3DTest, changedLabel_isShown) {
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    dialog->label = LvString("Other");
    auto* const group = static_cast<LuGroup*>(dialog->getPart("labelSep", false));
    auto* const text = static_cast<LuText3*>(group->getChild(group->getNumChildren() - 1));
    ASSERT_EQ(text->string.getNum(), 1);
    EXPECT_EQ(text->string[0], "Other");
}

TEST_F(LuTopLevelDialog3DTest, changedLabel_standsWhereTheFirstOneStood) {
    const LvVec3f own =
        getTranslation(buildDialog("TopLevelDialog { label \"_\" width 300 height 200 }"), "labelSep");
    LuTopLevelDialog* const dialog = buildDialog(s_dialog);
    const LvVec3f before = getTranslation(dialog, "labelSep");
    ASSERT_NE(before, own);
    dialog->label = LvString("_");
    dialog->updateDialogBuild(0);
    EXPECT_EQ(getTranslation(dialog, "labelSep"), before);
}

TEST_F(LuTopLevelDialog3DTest, panelOfADialogWithoutAHeight_hasRoomForTheTitleAboveTheChildren) {
    LuTopLevelDialog* const dialog =
        buildDialog("TopLevelDialog { DialogComponent { } DialogComponent { } }");
    EXPECT_EQ(dialog->height.getValue(), 2 * 28 + 24 + 2 * GetSystemMetrics(SM_CYFRAME));
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(static_cast<LuDialogComponent*>(dialog->getChild(i))->height.getValue(), 28);
}

TEST_F(LuTopLevelDialog3DTest, groupTraversedAlone_clearsTheFlagOfItsDialog) {
    LuTopLevelDialog* const dialog =
        read<LuTopLevelDialog>("TopLevelDialog { RowDialog { DialogComponent { } } }");
    buildIn3D(dialog->getChild(0));
    EXPECT_FALSE(dialog->canBeTraversed());
    EXPECT_FALSE(dialog->isBuilt3D());
    EXPECT_TRUE(dialog->getChild(0)->isBuilt3D());
}

} // namespace
