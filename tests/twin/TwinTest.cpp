// SPDX-License-Identifier: MIT
#include "tests/twin/Twin.h"
#include "tests/host/ComponentTest.h"

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

} // namespace
