// SPDX-License-Identifier: MIT
// What the end of a dialog of push buttons costs that has been built in 3D: its nodes, its sensors, and its
// places in the lists of the nodes of the skin, which thousands of parents share.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"

int main(int argc, char** argv) {
    LuPanelix::init();
    for (const int count : bench::counts(argc, argv)) {
        const std::string text = bench::panelixText(bench::buttonDialog(count));
        const char* const name = "lastButton";
        LuTopLevelDialog* dialog = nullptr;
        const bench::Sample sample{
            .prepare =
                [&] {
                    dialog = bench::readDialog(text);
                    dialog->buildDialog(nullptr, 0);
                    LuDialogPushButton* const last = bench::findButton(*dialog, count - 1);
                    bench::require(last->isBuilt3D(), "the last button is built");
                    last->setName(name);
                },
            .body = [&] { dialog->unref(); },
            .clear = [&] { bench::require(!LuNode::getByName(name), "the last button has gone"); }};
        bench::measure("panelix-destroy", count, bench::repeatsFor(count), count, sample);
    }
    LuPanelix::finish();
}
