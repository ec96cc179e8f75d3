// SPDX-License-Identifier: MIT
#include "tests/twin/Twin.h"

#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogRealSlider.h"
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

TEST_F(TwinTest, buttonReleasedElsewhere_isHeardInTheSceneOnly) {
    // A window looks where the mouse is released; the scene goes by where it was pressed.
    const std::string script = "drag first 0 150\n";
    EXPECT_EQ(playTwin(Rendition::WINDOWS, BUTTONS, script).calls, Calls());
    EXPECT_EQ(playTwin(Rendition::SCENE, BUTTONS, script).calls, Calls{"dialogPushButton first First"});
}

TEST_F(TwinTest, spaceKey_pressesTheButtonOfTheLastClickInWindowsOnly) {
    // In the scene nothing has the keyboard but what text is typed into.
    const std::string script = "press first\nrelease\nkey Space\n";
    EXPECT_EQ(playTwin(Rendition::WINDOWS, BUTTONS, script).calls,
              (Calls{"dialogPushButton first First", "dialogPushButton first First"}));
    EXPECT_EQ(playTwin(Rendition::SCENE, BUTTONS, script).calls, Calls{"dialogPushButton first First"});
}

TEST_F(TwinTest, tabKey_movesOnToTheNextButtonInWindowsOnly) {
    const std::string script = "press first\nrelease\nkey Tab\nkey Space\n";
    EXPECT_EQ(playTwin(Rendition::WINDOWS, BUTTONS, script).calls,
              (Calls{"dialogPushButton first First", "dialogPushButton second Second"}));
    EXPECT_EQ(playTwin(Rendition::SCENE, BUTTONS, script).calls, Calls{"dialogPushButton first First"});
}

TEST_F(TwinTest, buttonsSideBySide_areHeardEach) {
    EXPECT_EQ(expectTwins(R"(TopLevelDialog { auditorID "dialog" width 400 height 100 ColumnDialog {
        DialogPushButton { auditorID "left" buttonLabel "L" }
        DialogSeparator { }
        DialogCheckBox { auditorID "right" onString "R" } } })",
                          "press right\nrelease\npress left\nrelease\n", FRAMES),
              (Calls{"dialogCheckBox right TRUE", "dialogPushButton left L"}));
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

TEST_F(TwinTest, minimisedDialog_hidesItsButtonsFromTheMouse) {
    EXPECT_EQ(expectTwins(BUTTONS, "press dialog.minimise\nrelease\npress first\nrelease\n", FRAMES + BAR),
              Calls());
}

TEST_F(TwinTest, resizedDialog_isAsLargeAndItsButtonsAreHeard) {
    const std::string script = "resize 500 350\npress first\nrelease\n";
    EXPECT_EQ(expectTwins(BUTTONS, script, FRAMES), Calls{"dialogPushButton first First"});
    EXPECT_EQ(playTwin(Rendition::SCENE, BUTTONS, script).fields.at("dialog.width"), "500");
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

// Sliders

constexpr const char* SLIDERS = R"(
TopLevelDialog {
    auditorID "dialog"
    label "Twin"
    width 400
    height 300
    DialogIntegerSlider { auditorID "steps" label "Steps" min 0 max 4 value 2 }
    DialogRealSlider { auditorID "share" label "Share" min 0 max 1 value 0.5 fixedLimits TRUE }
    DialogIntegerSlider { auditorID "live" label "Live" max 1 continuousTrigger TRUE }
}
)";

/// Neither rendition has the first slider of its class: that treats its limits in another way.
class SliderTwinTest : public TwinTest {
protected:
    SliderTwinTest() {
        const Held<LuDialogIntegerSlider> integer;
        const Held<LuDialogRealSlider> real;
        traverse(integer.get());
        traverse(real.get());
    }
};

TEST_F(SliderTwinTest, drag_isHeardOnceAtItsEnd) {
    EXPECT_EQ(expectTwins(SLIDERS, "drag steps.cursor 300 0\ndrag steps -300 0\n", FRAMES),
              (Calls{"dialogIntegerSlider steps 4", "dialogIntegerSlider steps 0"}));
}

TEST_F(SliderTwinTest, dragOfAReal_endsAtItsLimits) {
    EXPECT_EQ(expectTwins(SLIDERS, "drag share.cursor 300 10\ndrag share.cursor -300 0\n", FRAMES),
              (Calls{"dialogRealSlider share 1", "dialogRealSlider share 0"}));
}

TEST_F(SliderTwinTest, dragWithContinuousTrigger_isHeardAtEachNewValue) {
    EXPECT_EQ(expectTwins(SLIDERS, "drag live 300 0\ndrag live -300 0\n", FRAMES),
              (Calls{"dialogIntegerSlider live 1", "dialogIntegerSlider live 0"}));
}

TEST_F(SliderTwinTest, pressOnTheBar_bringsThePositionThere) {
    EXPECT_EQ(expectTwins(SLIDERS, "drag steps 300 0\npress steps.frame\nrelease\n", FRAMES),
              (Calls{"dialogIntegerSlider steps 4", "dialogIntegerSlider steps 2"}));
}

TEST_F(SliderTwinTest, clickOnTheCheck_turnsTheTriggerOverWithoutAWord) {
    EXPECT_EQ(expectTwins(SLIDERS, "press steps.check\nrelease\n", FRAMES), Calls());
}

TEST_F(SliderTwinTest, clickOnTheCheck_decidesWhenADragIsHeard) {
    const Calls calls = expectTwins(
        SLIDERS, "press steps.check\nrelease\ndrag steps 300 0\npress live.check\nrelease\ndrag live 300 0\n",
        FRAMES);
    EXPECT_EQ(calls.back(), "dialogIntegerSlider live 1");
    EXPECT_EQ(calls[calls.size() - 2], "dialogIntegerSlider steps 4");
}

TEST_F(SliderTwinTest, typedInteger_isHeardAtReturn) {
    EXPECT_EQ(expectTwins(SLIDERS,
                          "press steps.value\nrelease\nkey End\nkey Backspace\ntype \"3\"\nkey Return\n",
                          FRAMES),
              Calls{"dialogIntegerSlider steps 3"});
}

TEST_F(SliderTwinTest, typedIntegerBeyondTheLimit_movesIt) {
    EXPECT_EQ(expectTwins(SLIDERS, "press steps.value\nrelease\nkey End\ntype \"5\"\nkey Return\n", FRAMES),
              Calls{"dialogIntegerSlider steps 25"});
}

TEST_F(SliderTwinTest, typedReal_isHeardAtReturn) {
    EXPECT_EQ(expectTwins(SLIDERS,
                          "press share.value\nrelease\nkey End\nkey Backspace\nkey Backspace\nkey Backspace\n"
                          "type \"25\"\nkey Return\n",
                          FRAMES),
              Calls{"dialogRealSlider share 0.25"});
}

TEST_F(SliderTwinTest, lettersAndSigns_stayOutOfTheNumber) {
    EXPECT_EQ(
        expectTwins(SLIDERS, "press share.value\nrelease\nkey End\ntype \"x-,1\"\nkey Return\n", FRAMES),
        Calls{"dialogRealSlider share 0.5001"});
}

TEST_F(SliderTwinTest, typedNumberBeyondAFixedLimit_isTakenInTheSceneOnly) {
    constexpr const char* TYPED =
        "press share.value\nrelease\nkey End\nkey Backspace\nkey Backspace\nkey Backspace\n"
        "key Backspace\nkey Backspace\ntype \"7\"\nkey Return\n";
    EXPECT_EQ(playTwin(Rendition::WINDOWS, SLIDERS, TYPED).calls, Calls{"dialogRealSlider share 1"});
    EXPECT_EQ(playTwin(Rendition::SCENE, SLIDERS, TYPED).calls, Calls{"dialogRealSlider share 7"});
}

TEST_F(SliderTwinTest, returnOnTheSameNumber_isHeardInTheSceneOnly) {
    constexpr const char* SAME = "press steps.value\nrelease\nkey Return\n";
    EXPECT_EQ(playTwin(Rendition::WINDOWS, SLIDERS, SAME).calls, Calls());
    EXPECT_EQ(playTwin(Rendition::SCENE, SLIDERS, SAME).calls, Calls{"dialogIntegerSlider steps 2"});
}

} // namespace
