// SPDX-License-Identifier: MIT
#include "tests/twin/Twin.h"
#include "tests/host/ComponentTest.h"

#include <cstdio>

namespace {

constexpr const char* FRAME = "a window's frame and title are as thick as the system has them, a panel's are "
                              "not: other room is left inside";

/// What differs in every dialog.
const std::vector<TwinDifference> FRAMES = {{".height", FRAME}, {"dialog.minHeight", FRAME}};

class TwinTest : public ComponentTest {};

constexpr const char* BUTTONS = R"(
TopLevelDialog {
    auditorID "dialog"
    label "Twin"
    width 400
    height 300
    DialogLabel { auditorID "text" label "A text" }
    DialogSeparator { auditorID "line" }
    RowDialog {
        DialogPushButton { auditorID "first" label "One" buttonLabel "First" }
        DialogPushButton { auditorID "second" labelVisibility FALSE buttonLabel "Second" }
        DialogPushButton { auditorID "never" buttonLabel "Never" enable FALSE }
    }
}
)";

using Calls = std::vector<std::string>;

TEST_F(TwinTest, pushButton_isHeardOnceForEachPressAndRelease) {
    const Calls calls =
        expectTwins(BUTTONS, "press first\nrelease\npress second\nrelease\npress first\nrelease\n", FRAMES);
    EXPECT_EQ(calls, (Calls{"dialogPushButton first First", "dialogPushButton second Second",
                            "dialogPushButton first First"}));
}

TEST_F(TwinTest, pressWithoutRelease_isNotHeard) {
    EXPECT_EQ(expectTwins(BUTTONS, "press first\n", FRAMES), Calls());
}

TEST_F(TwinTest, disabledButton_isNotHeard) {
    EXPECT_EQ(expectTwins(BUTTONS, "press never\nrelease\n", FRAMES), Calls());
}

TEST_F(TwinTest, labelAndSeparator_takeNoPress) {
    EXPECT_EQ(expectTwins(BUTTONS, "press text\nrelease\npress line\nrelease\n", FRAMES), Calls());
}

constexpr const char* CHECKS = R"(
TopLevelDialog {
    auditorID "dialog"
    label "Twin"
    width 400
    height 200
    RowDialog {
        DialogCheckBox { auditorID "fog" label "Fog" onString "Thick" offString "None" }
        DialogCheckBox { auditorID "rain" labelVisibility FALSE onString "Rain" state TRUE }
        DialogCheckBox { auditorID "never" onString "Never" enable FALSE }
    }
}
)";

TEST_F(TwinTest, checkBox_turnsAtEachClickAndTellsItsState) {
    const Calls calls = expectTwins(
        CHECKS, "press fog\nrelease\npress rain\nrelease\npress fog\nrelease\npress fog\nrelease\n", FRAMES);
    EXPECT_EQ(calls, (Calls{"dialogCheckBox fog TRUE", "dialogCheckBox rain FALSE",
                            "dialogCheckBox fog FALSE", "dialogCheckBox fog TRUE"}));
}

TEST_F(TwinTest, checkBox_keepsItsStateUntilTheRelease) {
    EXPECT_EQ(expectTwins(CHECKS, "press rain\n", FRAMES), Calls());
}

TEST_F(TwinTest, disabledCheckBox_keepsItsState) {
    EXPECT_EQ(expectTwins(CHECKS, "press never\nrelease\n", FRAMES), Calls());
}

TEST_F(TwinTest, checkBoxReleasedElsewhere_turnsInTheSceneOnly) {
    // A window looks where the mouse is released; the scene goes by where it was pressed.
    const std::string script = "drag fog 0 300\n";
    EXPECT_EQ(playTwin(Rendition::WINDOWS, CHECKS, script).calls, Calls());
    EXPECT_EQ(playTwin(Rendition::SCENE, CHECKS, script).calls, Calls({"dialogCheckBox fog TRUE"}));
}

TEST_F(TwinTest, spaceKey_turnsTheCheckBoxOfTheLastClickInWindowsOnly) {
    // In the scene nothing has the keyboard but what text is typed into.
    const std::string script = "press fog\nrelease\nkey Space\n";
    EXPECT_EQ(playTwin(Rendition::WINDOWS, CHECKS, script).calls,
              Calls({"dialogCheckBox fog TRUE", "dialogCheckBox fog FALSE"}));
    EXPECT_EQ(playTwin(Rendition::SCENE, CHECKS, script).calls, Calls({"dialogCheckBox fog TRUE"}));
}

// Moving and minimising the dialog itself

using Differences = std::vector<TwinDifference>;

Differences operator+(Differences differences, const Differences& more) {
    differences.insert(differences.end(), more.begin(), more.end());
    return differences;
}

/// What a window writes while it is minimised, and a panel doesn't.
const Differences BAR = {
    {"dialog.width",
     "a minimised window is a small bar and says how wide that is; a panel's strip is as wide "
     "as the panel"},
    {"dialog.position", "the system puts the bar where it likes; a panel's strip has a place of its own"},
    {"dialog.minimized", "the field speaks of the panel alone; a window knows by itself"}};

TEST_F(TwinTest, dialogDraggedByItsFrame_movesThePanelsPlaceAlone) {
    EXPECT_EQ(
        expectTwins(BUTTONS, "drag dialog 30 20\n",
                    FRAMES + Differences{{"dialog.position3D",
                                          "the place of a panel in its scene; a window has its place on the "
                                          "screen, which its frame's moves don't write to a field"}}),
        Calls());
}

TEST_F(TwinTest, draggedPanel_standsWhereTheMouseTookIt) {
    const TwinOutcome scene = playTwin(Rendition::SCENE, BUTTONS, "drag dialog 30 20\n");
    float x = 0, y = 0, z = 0;
    ASSERT_EQ(std::sscanf(scene.fields.at("dialog.position3D").c_str(), "%f %f %f", &x, &y, &z), 3);
    EXPECT_NEAR(x, 30, 0.01F);
    EXPECT_NEAR(y, 20, 0.01F);
    EXPECT_EQ(z, 0);
}

TEST_F(TwinTest, minimisedDialog_isABarOrAStrip) {
    EXPECT_EQ(expectTwins(BUTTONS, "press dialog.minimise\nrelease\n", FRAMES + BAR), Calls());
}

TEST_F(TwinTest, minimisedDialogDragged_movesTheStripsPlaceAlone) {
    EXPECT_EQ(
        expectTwins(BUTTONS, "press dialog.minimise\nrelease\ndrag dialog 30 20\n",
                    FRAMES + BAR +
                        Differences{{"dialog.minimized3DPosition",
                                     "the place of the strip in the scene; the bar's is the system's"}}),
        Calls());
}

TEST_F(TwinTest, dialogMinimisedAndRestored_isAsBeforeAndItsButtonsAreHeard) {
    EXPECT_EQ(expectTwins(BUTTONS,
                          "press dialog.minimise\nrelease\npress dialog.minimise\nrelease\n"
                          "press first\nrelease\n",
                          FRAMES),
              Calls{"dialogPushButton first First"});
}

} // namespace
