// SPDX-License-Identifier: MIT
// What a new size of the shared dialog's window costs, with the layout of all its controls that follows.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"
#include "platform/lumora/io/LuDB.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

namespace {

/// Left, top, right and bottom on the screen.
using Place = std::array<LONG, 4>;

std::vector<LuDialogPushButton*> findButtons(LuTopLevelDialog& dialog, const bench::Item& item) {
    std::vector<LuDialogPushButton*> buttons;
    const std::function<void(const bench::Item&)> collect = [&](const bench::Item& part) {
        if (part.kind == bench::Kind::PushButton)
            buttons.push_back(static_cast<LuDialogPushButton*>(dialog.searchForAuditorId(part.id.c_str())));
        for (const bench::Item& child : part.children)
            collect(child);
    };
    collect(item);
    return buttons;
}

std::vector<Place> places(const std::vector<LuDialogPushButton*>& buttons) {
    std::vector<Place> result(buttons.size());
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        RECT rectangle;
        GetWindowRect(buttons[i]->getWidget(), &rectangle);
        result[i] = {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
    }
    return result;
}

void measureResize(int count) {
    const bench::Item description = bench::mixedDialog(count);
    LuTopLevelDialog* dialog = bench::readDialog(bench::panelixText(description));
    dialog->buildDialog(nullptr, 0);
    const HWND window = dialog->getBaseWidget();
    const int width = dialog->width.getValue();
    const int height = dialog->height.getValue();
    int turn = 0;
    const auto resize = [&] {
        turn = 1 - turn;
        const int more = 400 + 400 * turn;
        SetWindowPos(window, nullptr, 0, 0, width + more, height + more, SWP_NOMOVE | SWP_NOZORDER);
    };

    const std::vector<LuDialogPushButton*> buttons = findButtons(*dialog, description);
    resize();
    const std::vector<Place> before = places(buttons);
    resize();
    const std::vector<Place> after = places(buttons);
    bench::require(std::ranges::mismatch(before, after, std::not_equal_to()).in1 == before.end(),
                   "a resize moves or stretches every button at once");
    bench::measure("panelix-resize", count, bench::repeatsFor(count), count,
                   {.prepare = {}, .body = resize, .clear = {}});
    dialog->close();
}

} // namespace

int main(int argc, char** argv) {
    LuPanelix::init();
    LuDBImpl::m_isHeadless = false;
    for (const int count : bench::counts(argc, argv))
        measureResize(count);
    LuPanelix::finish();
}
