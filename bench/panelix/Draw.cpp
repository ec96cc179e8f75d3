// SPDX-License-Identifier: MIT
// What drawing a panel of push buttons with texts costs us: the first frame, frames in which nothing changes,
// and frames after one label has changed. Drawing itself, which is the graphics card's or the software
// renderer's work, is waited for outside of the measured time.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"
#include "platform/lumora/gl/LuOffscreenRenderer.h"

namespace {

void measurePanel(int count) {
    LuOffscreenRenderer renderer;
    renderer.setSize(200, 100);
    LuTopLevelDialog* dialog = nullptr;
    const auto render = [&] { bench::require(renderer.render(dialog), "the panel is drawn"); };
    const auto begin = [&] { dialog = bench::readDialog(bench::panelixText(bench::buttonDialog(count))); };
    const auto end = [&] {
        renderer.finish();
        renderer.render(nullptr);
        dialog->unref();
    };

    // The 3D build of the panel, its collecting and its way to the graphics card.
    bench::measure("panelix-draw-first", count, count > 1000 ? 3 : 5, 1,
                   {.prepare = begin, .body = render, .clear = end});

    begin();
    render();
    renderer.finish();
    LuGLRenderAction& action = renderer.getAction();
    bench::measure("panelix-draw-unchanged", count, 31, 1,
                   {.prepare = {}, .body = render, .clear = [&] { renderer.finish(); }});
    bench::require(action.getStatistics().visitedNodes == 0, "an unchanged frame traverses nothing");
    bench::report("panelix-draw-calls", count, 1, renderer.getDrawer()->getDrawCalls());

    LuDialogPushButton* const button = bench::findButton(*dialog, count / 2);
    int turn = 0;
    const auto change = [&] {
        turn = 1 - turn;
        button->buttonLabel.setValue(turn ? "Undo the change" : "Apply the change");
    };
    bench::measure("panelix-draw-changed", count, 31, 1,
                   {.prepare = change, .body = render, .clear = [&] { renderer.finish(); }});
    bench::require(action.getStatistics().collectedParts > 0, "a changed label is collected");
    bench::report("panelix-draw-changed-nodes", count, 1, action.getStatistics().visitedNodes);
    bench::report("panelix-draw-changed-bytes", count, 1,
                  static_cast<double>(renderer.getDrawer()->getSentBytes()));

    // Without the drawing: what our own work is, up to the graphics card's driver.
    const auto refresh = [&] {
        action.apply(dialog);
        renderer.getDrawer()->send(action.getDrawList());
    };
    bench::measure("panelix-refresh-unchanged", count, 301, 1, {.prepare = {}, .body = refresh, .clear = {}});
    bench::measure("panelix-refresh-changed", count, 301, 1,
                   {.prepare = change, .body = refresh, .clear = {}});
    end();
}

} // namespace

int main(int argc, char** argv) {
    LuPanelix::init();
    for (const int count : bench::counts(argc, argv))
        measurePanel(count);
    LuPanelix::finish();
}
