// SPDX-License-Identifier: MIT
#include "tests/random/RandomPanel.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogRealSlider.h"
#include "tests/layout/DialogTest.h"

#include <cstdlib>

namespace {

constexpr const char* PANEL = R"(
TopLevelDialog {
    auditorID "dialog"
    label "Random"
    width 400
    height 300
    position3D -200 -150 0
    DialogLabel { auditorID "text" label "A text" }
    DialogPushButton { auditorID "alone" label "Alone" buttonLabel "Alone" }
    DialogSeparator { auditorID "line" }
    DialogCheckBox { auditorID "check" label "Check" onString "Checked" offString "Not" state TRUE }
    DialogIntegerSlider { auditorID "steps" label "Steps" max 10 value 3 }
    DialogRealSlider { auditorID "share" label "Share" value 0.5 fixedLimits TRUE }
    RowDialog {
        auditorID "row"
        DialogPushButton { auditorID "first" label "One" buttonLabel "First" }
        DialogPushButton { auditorID "second" labelVisibility FALSE buttonLabel "Second" }
        ColumnDialog {
            auditorID "column"
            DialogPushButton { auditorID "inner" label "Three" buttonLabel "Inner" enable FALSE }
            DialogLabel { auditorID "note" label "Note" labelAlignment LEFT }
            DialogCheckBox { auditorID "deep" labelVisibility FALSE onString "Deep" }
            DialogRealSlider { auditorID "live" label "Live" max 40 continuousTrigger TRUE }
            DialogIntegerSlider { auditorID "bare" labelVisibility FALSE toggleVisible FALSE max 4 }
        }
    }
}
)";

/// A number that the environment may set for a longer or another run.
int getSetting(const char* name, int value) {
    const char* const set = std::getenv(name);
    return set ? std::atoi(set) : value;
}

enum class Order { WINDOWS_ONLY, SCENE_ONLY, WINDOWS_FIRST, SCENE_FIRST };
const char* const NAMES[] = {"windowsOnly", "sceneOnly", "windowsFirst", "sceneFirst"};

/// No slider of the panel is the first of its class: that treats its limits in another way.
class RandomPanelTest : public DialogTest, public testing::WithParamInterface<Order> {
protected:
    RandomPanelTest() {
        const Held<LuDialogIntegerSlider> integer;
        const Held<LuDialogRealSlider> real;
        traverse(integer.get());
        traverse(real.get());
    }
};

TEST_P(RandomPanelTest, anythingDoneToAPanel_showsInBothRenditionsAndIsHeardOnce) {
    const int count = getSetting("PANELIX_RANDOM_ACTIONS", PANELIX_RANDOM_ACTIONS);
    const auto seed =
        static_cast<std::uint32_t>(getSetting("PANELIX_RANDOM_SEED", 1000 + static_cast<int>(GetParam())));
    auto* const dialog = read<LuTopLevelDialog>(PANEL);
    ASSERT_NE(dialog, nullptr);
    RandomPanel panel(*dialog, seed);
    const bool isWindowsFirst = GetParam() == Order::WINDOWS_ONLY || GetParam() == Order::WINDOWS_FIRST;
    const bool isBoth = GetParam() == Order::WINDOWS_FIRST || GetParam() == Order::SCENE_FIRST;
    isWindowsFirst ? panel.buildWindows() : panel.buildScene();
    if (isBoth) {
        ASSERT_TRUE(panel.run(count / 5));
        isWindowsFirst ? panel.buildScene() : panel.buildWindows();
    }
    ASSERT_TRUE(panel.run(count));
    // The buttons do get pressed.
    EXPECT_GT(panel.getCallCount(), count / 200);
}

INSTANTIATE_TEST_SUITE_P(, RandomPanelTest,
                         testing::Values(Order::WINDOWS_ONLY, Order::SCENE_ONLY, Order::WINDOWS_FIRST,
                                         Order::SCENE_FIRST),
                         [](const auto& test) {
                             return std::string(NAMES[static_cast<std::size_t>(test.param)]);
                         });

} // namespace
