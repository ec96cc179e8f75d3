// SPDX-License-Identifier: MIT
// What a dialog of push buttons costs in windows, from the read dialog to all its windows.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"

int main(int argc, char** argv) {
    LuPanelix::init();
    for (const int count : bench::counts(argc, argv, {1000})) {
        const std::string text = bench::panelixText(bench::buttonDialog(count));
        LuTopLevelDialog* dialog = nullptr;
        const bench::Sample sample{
            .prepare = [&] { dialog = bench::readDialog(text); },
            .body = [&] { dialog->buildDialog(nullptr, 0); },
            .clear =
                [&] {
                    const HWND last = bench::findButton(*dialog, count - 1)->getWidget();
                    bench::require(IsWindow(last) != 0, "the last button has its window");
                    dialog->close();
                }};
        bench::measure("panelix-windows", count, 5, count, sample);
    }
    LuPanelix::finish();
}
