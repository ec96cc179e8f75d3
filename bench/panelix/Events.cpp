// SPDX-License-Identifier: MIT
// What an event costs that nobody has grabbed, beside a dialog of many push buttons and on one of them.
#include "auditors/LuDialogPushButtonAuditor.h"
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/DialogScene.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"

namespace {

constexpr int CALLS = 10; ///< In each repeat.
constexpr int VIEWPORT = 20000;

class Counter : public LuDialogPushButtonAuditor {
public:
    ~Counter() override = default;
    void dialogPushButton(LuDialogPushButton*) override { ++m_count; }
    int m_count = 0;
};

/// A dialog of buttons, one of which is heard.
class ButtonScene : public bench::DialogScene {
public:
    explicit ButtonScene(int count)
        : DialogScene(bench::readDialog(bench::panelixText(bench::buttonDialog(count))), VIEWPORT) {
        LuDialogPushButton* const button = bench::findButton(getDialog(), count / 2);
        button->addAuditor(&m_presses);
        m_button = findMiddle(button);
    }

    const LvVec2i32 m_nothing{VIEWPORT - 10, 10}; ///< A pixel beside the dialog.
    LvVec2i32 m_button;                           ///< The middle of a button.
    Counter m_presses;
};

void measureMotion(const char* name, int count, ButtonScene& scene, const LvVec2i32& pixel) {
    bool isHandled = false;
    bench::measure(name, count, bench::repeatsFor(count), CALLS,
                   {.prepare = {},
                    .body =
                        [&] {
                            for (int i = 0; i < CALLS; ++i)
                                isHandled |= scene.moveTo(pixel);
                        },
                    .clear = {}});
    bench::require(!isHandled, "nobody takes a motion");
}

void measurePressOfNothing(int count, ButtonScene& scene) {
    bool isHandled = false;
    bench::measure("panelix-event-press-nothing", count, bench::repeatsFor(count), CALLS,
                   {.prepare = {},
                    .body =
                        [&] {
                            for (int i = 0; i < CALLS; ++i)
                                isHandled |= scene.press(scene.m_nothing);
                        },
                    .clear = {}});
    bench::require(!isHandled, "nobody takes a press of nothing");
}

/// Presses alone: their release goes to the button that has grabbed.
void measurePressOfButton(int count, ButtonScene& scene) {
    const int repeats = bench::repeatsFor(count);
    bench::measure("panelix-event-press-button", count, repeats, 1,
                   {.prepare = {},
                    .body = [&] { scene.press(scene.m_button); },
                    .clear = [&] { scene.release(scene.m_button); }});
    bench::require(scene.m_presses.m_count >= repeats, "each press reaches the button");
}

} // namespace

int main(int argc, char** argv) {
    LuPanelix::init();
    for (const int count : bench::counts(argc, argv)) {
        ButtonScene scene(count);
        measureMotion("panelix-event-move-nothing", count, scene, scene.m_nothing);
        measureMotion("panelix-event-move-button", count, scene, scene.m_button);
        measurePressOfNothing(count, scene);
        measurePressOfButton(count, scene);
    }
    LuPanelix::finish();
}
