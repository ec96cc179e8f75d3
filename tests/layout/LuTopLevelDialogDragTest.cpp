// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/host/SceneHost.h"
#include "tests/layout/DialogTest.h"

#include <cmath>
#include <numbers>
#include <optional>

namespace {

/// Keeps the toolkit when the library ends.
struct ToolkitHold {
    ToolkitHold() { LuDB::init(); }
    ~ToolkitHold() { LuDB::finish(); }
};

/// A panel in a scene, 300 wide and 200 high, and a user who presses and drags it.
class LuTopLevelDialogDragTest : public DialogTest {
protected:
    /// Shows the panel of the text. Its top-left corner is at (-100, 90, 5), unless the text says otherwise.
    void show(const char* text) {
        m_dialog = read<LuTopLevelDialog>(text);
        ASSERT_NE(m_dialog, nullptr);
        m_scene.emplace(m_dialog);
    }
    void SetUp() override {
        show("TopLevelDialog { label \"I\" width 300 height 200 position3D -100 -90 5"
             " DialogComponent { width 40 height 28 } }");
    }
    void TearDown() override { m_scene.reset(); }

    /// Shows the panel behind a node that changes its space.
    void showBelow(LuNode* transform) {
        auto* const group = new LuSeparator;
        group->addChild(transform);
        group->addChild(m_dialog);
        m_scene.emplace(group);
    }
    static LuScale* makeScale(float x, float y, float z) {
        auto* const scale = new LuScale;
        scale->scaleFactor.setValue({x, y, z});
        return scale;
    }

    /// Looks from below in front of the panel, so that what is higher lies farther away.
    void seeAslant() {
        auto* const camera = new LuPerspectiveCamera;
        camera->position.setValue({0, -600, 600});
        camera->pointAt({0, 0, 0});
        camera->nearDistance.setValue(100);
        camera->farDistance.setValue(2000);
        m_scene->useCamera(camera);
    }
    void expectPosition(const LvVec3f& expected, float tolerance = 0.001F) const {
        expectNear(m_dialog->position3D.getValue(), expected, tolerance);
    }
    static void expectNear(const LvVec3f& place, const LvVec3f& expected, float tolerance = 0.001F) {
        EXPECT_NEAR(place.x, expected.x, tolerance);
        EXPECT_NEAR(place.y, expected.y, tolerance);
        EXPECT_NEAR(place.z, expected.z, tolerance);
    }

    /// The place of a point of the panel, from its top-left corner with y downwards, in front of the frame.
    LvVec3f getPlace(float x, float y) const {
        const bool isMinimized = m_dialog->minimized.getValue();
        const LvVec3f& corner =
            isMinimized ? m_dialog->minimized3DPosition.getValue() : m_dialog->position3D.getValue();
        return {corner.x + x, -corner.y - y, corner.z + 1};
    }

    /// A place of the frame where nothing stands in front of it.
    LvVec3f getGrip() const { return getPlace(150, 12); }

    static LvVec3f getFirstTranslation(LuBaseKit& kit, const char* part) {
        auto* const group = static_cast<LuGroup*>(kit.getPart(part, false));
        for (int i = 0; i < group->getNumChildren(); ++i) {
            if (group->getChild(i)->isOfType(LuTranslation::getClassTypeId()))
                return static_cast<LuTranslation*>(group->getChild(i))->translation.getValue();
        }
        ADD_FAILURE() << "No translation in " << part;
        return {};
    }
    LvVec3f getFramePlace() const { return getFirstTranslation(*m_dialog, "geomSwitch"); }

    static int getSwitch(LuPanelix* component, const char* part) {
        return static_cast<LuSwitch*>(component->getPart(part, true))->whichChild.getValue();
    }
    bool isButtonPressed() const { return getSwitch(m_dialog, "minSwtch") == 1; }
    bool isChildShown() const { return getSwitch(m_dialog->getChild(0), "geomSwitch") == LuSwitch::SHOW_ALL; }

    LuTopLevelDialog* m_dialog = nullptr;
    std::optional<SceneHost> m_scene;
};

// The minimise button

TEST_F(LuTopLevelDialogDragTest, pressOnTheMinimiseButton_showsItPressed) {
    m_scene->press(*m_dialog, "minSep");
    EXPECT_TRUE(isButtonPressed());
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_dialog);
    EXPECT_FALSE(m_dialog->minimized.getValue());
}

TEST_F(LuTopLevelDialogDragTest, clickOnTheMinimiseButton_collapsesThePanelWhereItStands) {
    m_scene->click(*m_dialog, "minSep");
    EXPECT_FALSE(isButtonPressed());
    EXPECT_TRUE(m_dialog->minimized.getValue());
    EXPECT_FALSE(isChildShown());
    EXPECT_EQ(m_dialog->getTopLevelSize(), LvVec3f(300, 20, 1));
    EXPECT_EQ(m_dialog->minimized3DPosition.getValue(), LvVec3f(-100, -90, 5));
    EXPECT_EQ(getFramePlace(), LvVec3f(50, 80, 5));
}

TEST_F(LuTopLevelDialogDragTest, secondClickOnTheMinimiseButton_restoresThePanel) {
    m_scene->click(*m_dialog, "minSep");
    m_scene->click(*m_dialog, "minSep");
    EXPECT_FALSE(m_dialog->minimized.getValue());
    EXPECT_TRUE(isChildShown());
    EXPECT_EQ(m_dialog->getTopLevelSize(), LvVec3f(300, 200, 1));
}

TEST_F(LuTopLevelDialogDragTest, minimiseButtonReleasedElsewhere_collapsesAllTheSame) {
    m_scene->press(*m_dialog, "minSep");
    m_scene->dragBy(-200, -60);
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f(-100, -90, 5));
    m_scene->release();
    EXPECT_TRUE(m_dialog->minimized.getValue());
}

TEST_F(LuTopLevelDialogDragTest, minimiseButtonOfAPanelThatHidesItsChildren_takesThemAlongFirst) {
    m_dialog->hideChildren = true;
    m_dialog->position3D = LvVec3f(-90, -90, 5);
    EXPECT_EQ(m_dialog->getChild(0)->get3DParentTranslation().x, -96);
    m_scene->click(*m_dialog, "minSep");
    EXPECT_EQ(m_dialog->getChild(0)->get3DParentTranslation().x, -86);
    EXPECT_FALSE(isChildShown());
}

TEST_F(LuTopLevelDialogDragTest, skinWithoutTextProperties_leavesTheMinimiseButtonInFrontOfTheFrame) {
    LuNode* const properties = LuNode::getByName("DialogTextProperties");
    properties->setName("Hidden");
    show("TopLevelDialog { width 300 height 200 }");
    properties->setName("DialogTextProperties");
    m_scene->click(*m_dialog, "minSep");
    EXPECT_TRUE(m_dialog->minimized.getValue());
}

// Dragging

TEST_F(LuTopLevelDialogDragTest, dragOfTheFrame_movesThePanelWithTheMouse) {
    m_scene->press(getGrip());
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_dialog);
    m_scene->dragBy(30, 10);
    expectPosition({-70, -100, 5});
    expectNear(getFramePlace(), {80, 0, 5});
    EXPECT_NEAR(m_dialog->getChild(0)->get3DParentTranslation().x, -66, 0.001);
    m_scene->dragBy(-30, -50);
    m_scene->release();
    expectPosition({-100, -50, 5});
    EXPECT_FALSE(m_dialog->minimized.getValue());
}

TEST_F(LuTopLevelDialogDragTest, motionAfterTheRelease_movesNothing) {
    m_scene->press(getGrip());
    m_scene->dragBy(30, 10);
    m_scene->release();
    m_scene->dragBy(30, 10);
    expectPosition({-70, -100, 5});
}

TEST_F(LuTopLevelDialogDragTest, secondDrag_startsWhereTheFirstEnded) {
    for (int i = 0; i < 2; ++i) {
        m_scene->press(getGrip());
        m_scene->dragBy(20, -10);
        m_scene->release();
    }
    expectPosition({-60, -70, 5});
}

TEST_F(LuTopLevelDialogDragTest, dragOfAPanelThatHidesItsChildren_leavesThemHidden) {
    m_dialog->hideChildren = true;
    m_scene->press(getGrip());
    EXPECT_FALSE(isChildShown());
    m_scene->dragBy(30, 10);
    m_scene->release();
    expectPosition({-70, -100, 5});
    EXPECT_EQ(m_dialog->getChild(0)->get3DParentTranslation().x, -96);
    EXPECT_FALSE(isChildShown());
}

TEST_F(LuTopLevelDialogDragTest, dragOfTheStrip_movesTheStripAlone) {
    m_dialog->minimized = true;
    m_scene->press(getGrip());
    m_scene->dragBy(30, 10);
    expectNear(m_dialog->minimized3DPosition.getValue(), {-70, -100, 5});
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f(-100, -90, 5));
    expectNear(getFramePlace(), {80, 90, 5});
}

TEST_F(LuTopLevelDialogDragTest, dragOfAStripWithADependentPosition_takesThePanelAlong) {
    m_dialog->independentMinimizedPosition = false;
    m_dialog->minimized = true;
    m_scene->press(getGrip());
    m_scene->dragBy(30, 10);
    m_scene->release();
    expectNear(m_dialog->minimized3DPosition.getValue(), {-70, -100, 5});
    expectPosition({-70, -100, 5});
    m_dialog->minimized = false;
    expectNear(getFramePlace(), {80, 0, 5});
}

TEST_F(LuTopLevelDialogDragTest, pressOnTheTitle_neitherDragsNorCollapses) {
    m_scene->press(*m_dialog, "labelSep");
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_dialog);
    EXPECT_FALSE(isButtonPressed());
    m_scene->dragBy(30, 10);
    m_scene->release();
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f(-100, -90, 5));
    EXPECT_FALSE(m_dialog->minimized.getValue());
}

TEST_F(LuTopLevelDialogDragTest, pressOnAChildThatTakesNone_makesThePanelActiveAndDragsNothing) {
    m_scene->press(m_scene->getMiddle(m_dialog->getChild(0)));
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_dialog);
    m_scene->dragBy(30, 10);
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f(-100, -90, 5));
}

TEST_F(LuTopLevelDialogDragTest, pressBesideThePanel_isNotHandled) {
    EXPECT_FALSE(m_scene->press({300, 300, 0}));
    m_scene->dragBy(30, 10);
    EXPECT_FALSE(m_scene->release());
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f(-100, -90, 5));
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
}

TEST_F(LuTopLevelDialogDragTest, otherMouseButton_doesNotDrag) {
    m_scene->press(getGrip(), LuMouseButtonEvent::BUTTON2);
    m_scene->dragBy(30, 10);
    m_scene->release(LuMouseButtonEvent::BUTTON2);
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f(-100, -90, 5));
}

TEST_F(LuTopLevelDialogDragTest, panelBelowAScale_isDraggedInItsOwnUnits) {
    showBelow(makeScale(2, 2, 2));
    m_scene->press(getGrip() * 2.0F);
    m_scene->dragBy(60, 20);
    expectPosition({-70, -100, 5});
}

TEST_F(LuTopLevelDialogDragTest, panelThatIsTurned_isDraggedAlongItsOwnAxes) {
    auto* const turn = new LuRotation;
    turn->rotation.setValue(LvRotation(LvVec3f(0, 0, 1), std::numbers::pi_v<float> / 2));
    showBelow(turn);
    const LvVec3f grip = getGrip();
    m_scene->press({-grip.y, grip.x, grip.z});
    m_scene->dragBy(-10, 30);
    expectPosition({-70, -100, 5}, 0.01F);
}

TEST_F(LuTopLevelDialogDragTest, panelSeenAslant_staysBelowTheMouse) {
    seeAslant();
    m_scene->press(getGrip());
    m_scene->moveTo(getGrip() + LvVec3f(40, -30, 0));
    // A pixel is about a unit here, and the mouse stands on whole ones.
    expectPosition({-60, -60, 5}, 2);
}

TEST_F(LuTopLevelDialogDragTest, mouseAboveTheHorizonOfThePanel_movesNothing) {
    seeAslant();
    m_scene->press(getGrip());
    m_scene->moveTo({0, 5000, 700});
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f(-100, -90, 5));
    m_scene->moveTo(getGrip() + LvVec3f(40, -30, 0));
    expectPosition({-60, -60, 5}, 2);
}

TEST_F(LuTopLevelDialogDragTest, panelDraggedByAController_followsItsRay) {
    // The hand stays, and turns.
    const LvVec3f hand(0, 0, 300);
    const auto aimAt = [&](float x, float y) {
        return LvLine::fromPoints(hand, getGrip() + LvVec3f(x, y, 0));
    };
    m_scene->trackerButton(LuButtonEvent::DOWN, aimAt(0, 0));
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_dialog);
    m_scene->trackerMove(aimAt(30, 10));
    expectPosition({-70, -100, 5}, 0.01F);
    m_scene->trackerButton(LuButtonEvent::UP, aimAt(30, 10));
    m_scene->trackerMove(aimAt(80, 80));
    expectPosition({-70, -100, 5}, 0.01F);
}

// What goes wrong

void removeFromScene(void* root, LuDragger* dragger) {
    static_cast<LuSeparator*>(root)->removeChild(dragger);
}

struct AddCallback {
    const char* name;
    void (LuDragger::*add)(LuDraggerFunction, void*);
};
const AddCallback s_callbacks[] = {{"start", &LuDragger::addStartCallback},
                                   {"motion", &LuDragger::addMotionCallback},
                                   {"finish", &LuDragger::addFinishCallback}};

TEST_F(LuTopLevelDialogDragTest, panelThatEndsInItsOwnCallback_isSafe) {
    for (const AddCallback& row : s_callbacks) {
        SceneHost scene;
        auto* const panel = new LuTopLevelDialog;
        panel->width = 300;
        panel->height = 200;
        scene.show(panel);
        (panel->*row.add)(&removeFromScene, &scene.getRoot());
        const int withPanel = scene.getRoot().getNumChildren();
        scene.press({150, -12, 1});
        scene.dragBy(10, 10);
        scene.dragBy(10, 10);
        scene.release();
        scene.dragBy(10, 10);
        EXPECT_EQ(scene.getRoot().getNumChildren(), withPanel - 1) << row.name;
        EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr) << row.name;
    }
}

TEST_F(LuTopLevelDialogDragTest, panelTakenOutOfTheSceneDuringADrag_isSafe) {
    m_scene->press(getGrip());
    m_scene->getRoot().removeChild(m_dialog);
    m_scene->dragBy(30, 10);
    m_scene->release();
    EXPECT_FALSE(m_scene->press(getGrip()));
}

TEST_F(LuTopLevelDialogDragTest, flattenedPanel_keepsAFinitePosition) {
    for (const LvVec3f scale : {LvVec3f(0, 0, 0), LvVec3f(1, 1, 0), LvVec3f(0, 1, 1)}) {
        showBelow(makeScale(scale.x, scale.y, scale.z));
        const LvVec3f grip = getGrip();
        m_scene->press({grip.x * scale.x, grip.y * scale.y, grip.z * scale.z});
        m_scene->dragBy(30, 10);
        m_scene->release();
        const LvVec3f& corner = m_dialog->position3D.getValue();
        EXPECT_TRUE(std::isfinite(corner.x) && std::isfinite(corner.y) && std::isfinite(corner.z));
    }
}

TEST_F(LuTopLevelDialogDragTest, cameraInsideThePanel_seesAndMovesNoFarther) {
    m_scene->getCamera().position.setValue({0, 0, 5.5F});
    m_scene->press(getGrip());
    m_scene->dragBy(30, 10);
    m_scene->release();
    const LvVec3f& corner = m_dialog->position3D.getValue();
    EXPECT_TRUE(std::isfinite(corner.x) && std::isfinite(corner.y) && std::isfinite(corner.z));
    EXPECT_EQ(corner.z, 5);
}

TEST_F(LuTopLevelDialogDragTest, sceneWithoutACamera_handlesNothing) {
    m_scene->getRoot().removeChild(&m_scene->getCamera());
    EXPECT_FALSE(m_scene->press(getGrip()));
    m_scene->dragBy(30, 10);
    m_scene->release();
    EXPECT_EQ(m_dialog->position3D.getValue(), LvVec3f(-100, -90, 5));
}

TEST_F(LuTopLevelDialogDragTest, eventsAfterTheEndOfTheLibrary_areSafe) {
    const ToolkitHold toolkit;
    const LvVec3f button = m_scene->getMiddle(*m_dialog, "minSep");
    m_scene->press(getGrip());
    LuPanelix::finish();
    EXPECT_EQ(m_dialog->getPart("minSep", true), nullptr);
    m_scene->dragBy(30, 10);
    m_scene->release();
    m_scene->click(button);
    m_scene->click(getPlace(20, 40));
    LuPanelix::init();
    EXPECT_EQ(m_dialog->isBuilt3D(), 1);
}

} // namespace
