// SPDX-License-Identifier: MIT
// What the first frame of a dialog of push buttons costs us: its 3D build, collecting it, and handing it to
// OpenGL, together and without the build. The driver takes all calls and draws nothing.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"
#include "platform/lumora/gl/LuOffscreenRenderer.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

/// A viewer that has shown a small panel with the same characters: its shaders are compiled and its glyphs
/// are known, as in an application that runs already.
std::unique_ptr<LuOffscreenRenderer> openViewer() {
    auto viewer = std::make_unique<LuOffscreenRenderer>();
    viewer->setSize(200, 100);
    LuTopLevelDialog* small = bench::readDialog(bench::panelixText(bench::buttonDialog(10)));
    bench::require(viewer->render(small), "the small panel is drawn");
    viewer->render(nullptr);
    small->unref();
    return viewer;
}

/// The new panel has been collected, and all of it was handed to the driver.
void checkFrame(LuOffscreenRenderer& viewer, LuTopLevelDialog& dialog, int count) {
    const auto buttons = static_cast<std::size_t>(count);
    const LuDrawList& list = viewer.getAction().getDrawList();
    std::size_t pieces = 0;
    for (const LuPieceList& part : list.pieces)
        pieces += part.getSize();
    bench::require(bench::findButton(dialog, count - 1)->isBuilt3D(), "the last button is built");
    bench::require(list.records.getCount() > 2 * buttons, "each button has its box and its text");
    bench::require(pieces > 10 * buttons, "each text has its characters");
    bench::require(viewer.getDrawer()->getSentBytes() > pieces * sizeof(LuPiece), "all pieces are sent");
    bench::require(viewer.getDrawer()->getDrawCalls() > 0, "the driver is asked to draw");
}

/// The driver that draws nothing never gives back its textures and buffers. So they would take memory from
/// the kernel, page by page, in each repeat; a driver that draws uses again what it had.
void makeMemoryReady() {
    constexpr std::size_t PAGE = 4096;
    const std::vector<std::byte> memory(PAGE * 2048);
    bench::require(memory.back() == std::byte(0), "the allocator has memory");
}

void measureFrame(const char* name, int count, bool isBuilt) {
    const std::string text = bench::panelixText(bench::buttonDialog(count));
    std::unique_ptr<LuOffscreenRenderer> viewer;
    LuTopLevelDialog* dialog = nullptr;
    const auto prepare = [&] {
        viewer = openViewer();
        makeMemoryReady();
        dialog = bench::readDialog(text);
        if (isBuilt)
            dialog->buildDialog(nullptr, 0);
    };
    const auto clear = [&] {
        checkFrame(*viewer, *dialog, count);
        viewer.reset();
        dialog->unref();
    };
    bench::measure(name, count, bench::repeatsFor(count), count,
                   {.prepare = prepare, .body = [&] { viewer->render(dialog); }, .clear = clear});
}

/// Otherwise a software renderer's work would be measured, a hundred times ours.
void checkDriverDrawsNothing() {
    const std::unique_ptr<LuOffscreenRenderer> viewer = openViewer();
    viewer->setBackground({1, 1, 1});
    LuTopLevelDialog* dialog = bench::readDialog(bench::panelixText(bench::buttonDialog(10)));
    LuPicture picture;
    bench::require(viewer->render(dialog, picture), "the panel is drawn");
    const auto isOther = [&](const LuPicture::Pixel& pixel) { return !(pixel == picture.at(0, 0)); };
    bench::require(std::ranges::none_of(picture.getPixels(), isOther), "the driver leaves the picture empty");
    dialog->unref();
}

} // namespace

int main(int argc, char** argv) {
    // Mesa's drivers then take all calls and draw nothing.
    setenv("GALLIUM_NOOP", "1", 1);
    LuPanelix::init();
    checkDriverDrawsNothing();
    for (const int count : bench::counts(argc, argv, {100, 1000})) {
        measureFrame("panelix-first-frame", count, false);
        measureFrame("panelix-first-frame-built", count, true);
    }
    LuPanelix::finish();
}
