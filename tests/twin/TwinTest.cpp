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

} // namespace
