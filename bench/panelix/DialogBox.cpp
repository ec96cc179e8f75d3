// SPDX-License-Identifier: MIT
// What the bounding box of a dialog in a scene costs while nothing in it changes.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "core/LuPanelix.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"

int main(int argc, char** argv) {
    LuPanelix::init();
    for (const int count : bench::counts(argc, argv)) {
        LuTopLevelDialog* dialog = bench::readDialog(bench::panelixText(bench::mixedDialog(count)));
        dialog->buildDialog(nullptr, 0);
        // As it hangs in an application's scene.
        auto* scene = new LuSeparator;
        scene->ref();
        scene->addChild(dialog);
        dialog->unref();
        LuGetBoundingBoxAction action;
        constexpr int calls = 100;
        bench::measure("panelix-dialog-bbox-warm", count, bench::repeatsFor(count), calls,
                       {.prepare = {},
                        .body =
                            [&] {
                                for (int i = 0; i < calls; ++i)
                                    action.apply(scene);
                            },
                        .clear = {}});
        bench::require(!action.getBoundingBox().isEmpty(), "the dialog has a box");
        scene->unref();
    }
    LuPanelix::finish();
}
