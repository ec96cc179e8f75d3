// SPDX-License-Identifier: MIT
// The memory that a push button takes from its making until its first build, with all that it owns.
#include "bench/Measure.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"

#include <malloc.h>

#include <vector>

int main(int argc, char** argv) {
    LuPanelix::init();
    for (const int count : bench::counts(argc, argv, {10000})) {
        std::vector<LuDialogPushButton*> buttons(static_cast<std::size_t>(count));
        const std::size_t before = mallinfo2().uordblks;
        for (LuDialogPushButton*& button : buttons) {
            button = new LuDialogPushButton;
            button->ref();
        }
        const std::size_t after = mallinfo2().uordblks;
        for (LuDialogPushButton* button : buttons)
            button->unref();
        bench::require(after > before, "the buttons take memory");
        bench::report("panelix-heap", count, 1, static_cast<double>(after - before) / count);
    }
    LuPanelix::finish();
}
