// SPDX-License-Identifier: MIT
// What the bounding box of a scene costs: of separators nested by tens, each of the innermost with a cube
// that is stretched and moved, as the frame of a control is.
#include "bench/Measure.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuTransforms.h"

#include <vector>

namespace {

constexpr int childrenOfGroup = 10;

LuSeparator* makeBox(int index, std::vector<LuTranslation*>& places) {
    auto* box = new LuSeparator;
    auto* place = new LuTranslation;
    place->translation.setValue(
        LvVec3f(static_cast<float>(index % 100) * 3.0F, static_cast<float>(index / 100) * 2.0F, 0.5F));
    auto* scale = new LuScale;
    scale->scaleFactor.setValue(LvVec3f(2.0F, 1.0F, 1.0F));
    auto* cube = new LuCube;
    cube->width.setValue(1.0F);
    cube->height.setValue(1.0F);
    cube->depth.setValue(1.0F);
    box->addChild(place);
    box->addChild(scale);
    box->addChild(cube);
    places.push_back(place);
    return box;
}

/// A separator with up to 'room' boxes, as many as are missing up to 'count'.
LuSeparator* makeScene(int room, int count, std::vector<LuTranslation*>& places) {
    auto* scene = new LuSeparator;
    for (int i = 0; i < childrenOfGroup && static_cast<int>(places.size()) < count; ++i) {
        const int next = static_cast<int>(places.size());
        scene->addChild(room > childrenOfGroup ? makeScene(room / childrenOfGroup, count, places)
                                               : makeBox(next, places));
    }
    return scene;
}

void measureScene(int count) {
    int room = childrenOfGroup;
    while (room < count)
        room *= childrenOfGroup;
    std::vector<LuTranslation*> places;
    LuSeparator* scene = makeScene(room, count, places);
    scene->ref();
    LuGetBoundingBoxAction action;
    const auto apply = [&] { action.apply(scene); };

    bench::measure("panelix-bbox-cold", count, bench::repeatsFor(count), count,
                   {.prepare =
                        [&] {
                            for (LuTranslation* place : places)
                                place->translation.touch();
                        },
                    .body = apply,
                    .clear = {}});
    const LvBox3f box = action.getBoundingBox();
    bench::require(box.min.x == -1.0F && box.max.z == 1.0F, "the scene's box goes round all cubes");

    constexpr int calls = 1000;
    bench::measure("panelix-bbox-warm", count, bench::repeatsFor(count), calls,
                   {.prepare = {},
                    .body =
                        [&] {
                            for (int i = 0; i < calls; ++i)
                                apply();
                        },
                    .clear = {}});
    bench::require(action.getBoundingBox() == box, "the box stays the same");
    scene->unref();
}

} // namespace

int main(int argc, char** argv) {
    LuDB::init();
    for (const int count : bench::counts(argc, argv))
        measureScene(count);
    LuDB::finish();
}
