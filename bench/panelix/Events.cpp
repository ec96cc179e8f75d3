// SPDX-License-Identifier: MIT
// What an event costs that nobody has grabbed, beside a dialog of many push buttons and on one of them.
#include "auditors/LuDialogPushButtonAuditor.h"
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/actions/LuPath.h"
#include "platform/lumora/events/LuEvent.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuGroup.h"

#include <cmath>

namespace {

constexpr int CALLS = 10; ///< In each repeat.
constexpr int VIEWPORT = 20000;

class Counter : public LuDialogPushButtonAuditor {
public:
    ~Counter() override = default;
    void dialogPushButton(LuDialogPushButton*) override { ++m_count; }
    int m_count = 0;
};

/// A dialog of buttons in a scene that shows all of it, with one unit a pixel.
class ButtonScene {
public:
    explicit ButtonScene(int count)
        : m_dialog(bench::readDialog(bench::panelixText(bench::buttonDialog(count)))),
          m_action(LvViewportRegion(VIEWPORT, VIEWPORT)) {
        m_camera->height = VIEWPORT;
        m_camera->position = LvVec3f(VIEWPORT / 2, -VIEWPORT / 2, 500);
        m_camera->nearDistance = 1;
        m_camera->farDistance = 1000;
        m_root->ref();
        m_root->addChild(m_camera);
        m_root->addChild(m_dialog);
        m_dialog->unref();
        LuGetBoundingBoxAction().apply(m_root);
        LuDialogPushButton* const button = bench::findButton(*m_dialog, count / 2);
        button->addAuditor(&m_presses);
        m_button = findMiddle(button);
    }
    ~ButtonScene() { m_root->unref(); }
    ButtonScene(const ButtonScene&) = delete;
    ButtonScene& operator=(const ButtonScene&) = delete;

    /// True when the event is handled.
    bool send(const LuEvent& event) {
        m_action.setEvent(&event);
        const bool isHandled = m_action.apply(m_root);
        m_action.setEvent(nullptr);
        return isHandled;
    }
    bool press(const LvVec2i32& pixel) {
        return send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::DOWN, pixel));
    }
    bool release(const LvVec2i32& pixel) {
        return send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::UP, pixel));
    }

    const LvVec2i32 m_nothing{VIEWPORT - 10, 10}; ///< A pixel beside the dialog.
    LvVec2i32 m_button;                           ///< The middle of a button.
    Counter m_presses;

private:
    LvVec2i32 findMiddle(LuDialogPushButton* button) {
        LuGetBoundingBoxAction action;
        action.apply(LuPath::find(m_root, button));
        const LvVec3f middle = (action.getBoundingBox().min + action.getBoundingBox().max) * 0.5F;
        return {static_cast<int>(std::lround(middle.x)), VIEWPORT + static_cast<int>(std::lround(middle.y))};
    }

    LuTopLevelDialog* m_dialog;
    LuSeparator* m_root = new LuSeparator;
    LuOrthographicCamera* m_camera = new LuOrthographicCamera;
    LuHandleEventAction m_action;
};

void measureMotion(const char* name, int count, ButtonScene& scene, const LvVec2i32& pixel) {
    bool isHandled = false;
    bench::measure(name, count, bench::repeatsFor(count), CALLS,
                   {.prepare = {},
                    .body =
                        [&] {
                            for (int i = 0; i < CALLS; ++i)
                                isHandled |= scene.send(LuLocation2Event(pixel));
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
