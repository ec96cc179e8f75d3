// SPDX-License-Identifier: MIT
// What the first 3D build of a dialog of push buttons costs: skin parts, text measuring, layout, placing.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"

int main(int argc, char** argv) {
    LuPanelix::init();
    for (const int count : bench::counts(argc, argv)) {
        const std::string text = bench::panelixText(bench::buttonDialog(count));
        LuTopLevelDialog* dialog = nullptr;
        const bench::Sample sample{.prepare = [&] { dialog = bench::readDialog(text); },
                                   .body = [&] { dialog->buildDialog(nullptr, 0); },
                                   .clear =
                                       [&] {
                                           bench::require(bench::findButton(*dialog, count - 1)->isBuilt3D(),
                                                          "the last button is built");
                                           dialog->unref();
                                       }};
        bench::measure("panelix-build-3d", count, bench::repeatsFor(count), count, sample);
    }
    LuPanelix::finish();
}
