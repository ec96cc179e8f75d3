// SPDX-License-Identifier: MIT
// What a pick of one of many push buttons costs: the nearest point on a ray of the scene, with the path to it
// and what the kits on the way have to say.
#include "bench/DialogText.h"
#include "bench/Measure.h"
#include "bench/panelix/ReadDialog.h"
#include "controls/LuDialogPushButton.h"
#include "core/LuPanelix.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/nodes/LuGroup.h"

#include <vector>

namespace {

constexpr int CALLS = 1000;
constexpr int NUM_TARGETS = 100;

struct Target {
    LuDialogPushButton* button;
    LvVec3f middle;
};

std::vector<Target> findTargets(LuTopLevelDialog& dialog, LuNode* scene, int count) {
    std::vector<Target> targets;
    LuGetBoundingBoxAction action;
    for (int i = 0; i < NUM_TARGETS; ++i) {
        LuDialogPushButton* const button = bench::findButton(dialog, i * 7 % count);
        action.apply(LuPath::find(scene, button));
        targets.push_back({button, action.getBoundingBox().getCenter()});
    }
    return targets;
}

void measurePick(int count) {
    LuTopLevelDialog* const dialog = bench::readDialog(bench::panelixText(bench::buttonDialog(count)));
    auto* const scene = new LuSeparator;
    scene->ref();
    scene->addChild(dialog);
    LuGetBoundingBoxAction().apply(scene);
    const std::vector<Target> targets = findTargets(*dialog, scene, count);
    const LvVec3f eye(dialog->width.getValue() * 0.5F, dialog->height.getValue() * -0.5F, 5000);
    LuRayPickAction action;
    int hits = 0;
    bench::measure("panelix-pick-button", count, bench::repeatsFor(count), CALLS,
                   {.prepare = [&] { hits = 0; },
                    .body =
                        [&] {
                            for (int i = 0; i < CALLS; ++i) {
                                const Target& target = targets[static_cast<std::size_t>(i % NUM_TARGETS)];
                                action.setRay(LvLine::fromPoints(eye, target.middle));
                                action.apply(scene);
                                const LuPickedPoint* const point = action.getPickedPoint();
                                hits += point && point->getPath()->getTail() == target.button ? 1 : 0;
                            }
                        },
                    .clear = {}});
    bench::require(hits == CALLS, "each ray meets its button");
    scene->unref();
    dialog->unref();
}

} // namespace

int main(int argc, char** argv) {
    LuPanelix::init();
    for (const int count : bench::counts(argc, argv, {1000, 10000}))
        measurePick(count);
    LuPanelix::finish();
}
