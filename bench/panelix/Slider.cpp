// SPDX-License-Identifier: MIT
// What an integer slider costs in a dialog of many controls: a new value set by the program, and one motion
// of a drag while both renditions are there and every motion is heard.
#include "auditors/LuDialogIntegerSliderAuditor.h"
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/DialogScene.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogIntegerSlider.h"
#include "core/LuNumberFormat.h"
#include "core/LuPanelix.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuText3.h"

namespace {

constexpr int REPEATS = 301;
constexpr int CALLS = 100; ///< In each repeat.
constexpr int VIEWPORT = 10000;

class Counter : public LuDialogIntegerSliderAuditor {
public:
    ~Counter() override = default;
    void dialogIntegerSlider(LuDialogIntegerSlider*) override { ++m_count; }
    int m_count = 0;
};

/// A dialog of buttons with a slider on top.
class SliderScene : public bench::DialogScene {
public:
    explicit SliderScene(int count)
        : DialogScene(bench::readDialog(bench::panelixText(bench::buttonDialog(count))), VIEWPORT) {
        m_slider->max = 1000;
        m_slider->width = 600;
        m_slider->fixedWidth = true;
        m_slider->continuousTrigger = true;
        m_slider->addAuditor(&m_events);
        getDialog().insertChild(m_slider, 0);
        settle();
    }
    ~SliderScene() { m_slider->removeAuditor(&m_events); }
    SliderScene(const SliderScene&) = delete;
    SliderScene& operator=(const SliderScene&) = delete;

    void buildWindows() {
        LuDBImpl::m_isHeadless = false;
        getDialog().buildDialog(nullptr, 0);
        LuDBImpl::m_isHeadless = true;
        bench::require(m_slider->getSliderWidget() != nullptr, "the slider has its windows");
    }

    void pressCursor() {
        m_cursor = findMiddle(m_slider->getPart("cursorSep", false));
        press(m_cursor);
        bench::require(m_slider->isActive(), "the cursor is held");
    }

    void drag(int x) { moveTo({m_cursor.x + x, m_cursor.y}); }

    LuDialogIntegerSlider* m_slider = new LuDialogIntegerSlider;
    Counter m_events;

private:
    LvVec2i32 m_cursor; ///< The pixel in its middle, at the press.
};

void measureValue(int count) {
    SliderScene scene(count);
    bench::measure("panelix-slider-value", count, REPEATS, CALLS,
                   {.prepare = [&] { scene.settle(); },
                    .body =
                        [&] {
                            for (int i = 1; i <= CALLS; ++i)
                                scene.m_slider->value = i;
                        },
                    .clear = {}});
    auto* const group = static_cast<LuGroup*>(scene.m_slider->getPart("editTextSep", false));
    auto* const text = static_cast<LuText3*>(group->getChild(group->getNumChildren() - 1));
    bench::require(text->string[0] == "100", "the last value shows");
}

/// The share of the number's text in that: printing it, and setting it.
void measureText() {
    LuNumberFormat format(LuNumberFormat::WHOLE, "%d");
    auto* text = new LuText3;
    text->ref();
    bench::measure("panelix-slider-text", 1, REPEATS, CALLS,
                   {.prepare = {},
                    .body =
                        [&] {
                            for (int i = 1; i <= CALLS; ++i)
                                text->string.set1Value(0, format.print(i));
                        },
                    .clear = {}});
    bench::require(text->string[0] == "100", "the texts were set");
    text->unref();
}

void measureDrag(int count) {
    SliderScene scene(count);
    scene.buildWindows();
    scene.pressCursor();
    bench::measure("panelix-slider-drag", count, REPEATS, CALLS,
                   {.prepare =
                        [&] {
                            scene.drag(0);
                            scene.settle();
                        },
                    .body =
                        [&] {
                            for (int i = 1; i <= CALLS; ++i)
                                scene.drag(i * 2);
                        },
                    .clear = {}});
    bench::require(scene.m_events.m_count > REPEATS * CALLS, "every motion was heard");
}

} // namespace

int main(int argc, char** argv) {
    LuPanelix::init();
    measureText();
    for (const int count : bench::counts(argc, argv, {100, 1000})) {
        measureValue(count);
        measureDrag(count);
    }
    LuPanelix::finish();
}
