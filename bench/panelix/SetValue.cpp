// SPDX-License-Identifier: MIT
// What a new text for one push button of many costs, in a dialog that stands in a scene with all its bounding
// boxes known.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"

int main(int argc, char** argv) {
    LuPanelix::init();
    for (const int count : bench::counts(argc, argv)) {
        LuTopLevelDialog* dialog = bench::readDialog(bench::panelixText(bench::buttonDialog(count)));
        dialog->buildDialog(nullptr, 0);
        LuDialogPushButton* button = bench::findButton(*dialog, count / 2);
        LuGetBoundingBoxAction action;
        int turn = 0;
        const bench::Sample sample{.prepare = [&] { action.apply(dialog); },
                                   .body =
                                       [&] {
                                           turn = 1 - turn;
                                           button->buttonLabel.setValue(turn ? "Undo the change"
                                                                             : "Apply the change");
                                       },
                                   .clear = {}};
        bench::measure("panelix-set-value", count, 301, 1, sample);
        dialog->close();
    }
    LuPanelix::finish();
}
