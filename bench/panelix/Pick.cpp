// SPDX-License-Identifier: MIT
// What it costs to find the nearest of many boxes on a ray: in separators nested by tens, each of the
// innermost with a cube that is stretched and moved, as the frame of a control is.
#include "bench/Measure.h"
#include "platform/lumora/actions/LuRayPickAction.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuTransforms.h"

#include <vector>

namespace {

constexpr int childrenOfGroup = 10;

/// A group of ten lies beside its neighbours, then above them, in turn, as columns of rows do.
struct Place {
    int x = 0, y = 0;
};

Place placeOf(int index) {
    Place place;
    int step = 1;
    for (bool isColumn = false; index > 0; index /= childrenOfGroup, isColumn = !isColumn) {
        (isColumn ? place.y : place.x) += index % childrenOfGroup * step;
        if (isColumn)
            step *= childrenOfGroup;
    }
    return place;
}

LvVec3f pointOf(int index) {
    const Place place = placeOf(index);
    return LvVec3f(static_cast<float>(place.x) * 3.0F, static_cast<float>(place.y) * 2.0F, 0.5F);
}

LuSeparator* makeBox(int index) {
    auto* box = new LuSeparator;
    auto* place = new LuTranslation;
    place->translation.setValue(pointOf(index));
    auto* scale = new LuScale;
    scale->scaleFactor.setValue(LvVec3f(2.0F, 1.0F, 1.0F));
    auto* cube = new LuCube;
    cube->width.setValue(1.0F);
    cube->height.setValue(1.0F);
    cube->depth.setValue(1.0F);
    box->addChild(place);
    box->addChild(scale);
    box->addChild(cube);
    return box;
}

/// A separator with up to 'room' boxes, as many as are missing up to 'count'.
LuSeparator* makeScene(int room, int count, int& made) {
    auto* scene = new LuSeparator;
    for (int i = 0; i < childrenOfGroup && made < count; ++i)
        scene->addChild(room > childrenOfGroup ? makeScene(room / childrenOfGroup, count, made)
                                               : makeBox(made++));
    return scene;
}

LuSeparator* makeFlatScene(int count) {
    auto* scene = new LuSeparator;
    for (int i = 0; i < count; ++i)
        scene->addChild(makeBox(i));
    return scene;
}

void measureScene(const char* name, LuSeparator* scene, int count) {
    scene->ref();
    LuRayPickAction action;
    int hits = 0;
    constexpr int calls = 1000;
    bench::measure(name, count, bench::repeatsFor(count), calls,
                   {.prepare = [&] { hits = 0; },
                    .body =
                        [&] {
                            for (int i = 0; i < calls; ++i) {
                                const LvVec3f target = pointOf(i * 7 % count);
                                action.setRay(LvLine::fromPoints({50.0F, 50.0F, 500.0F}, target));
                                action.apply(scene);
                                hits += action.getPickedPoint() ? 1 : 0;
                            }
                        },
                    .clear = {}});
    bench::require(hits == calls, "each ray meets its box");
    scene->unref();
}

} // namespace

int main(int argc, char** argv) {
    LuDB::init();
    for (const int count : bench::counts(argc, argv)) {
        int room = childrenOfGroup;
        while (room < count)
            room *= childrenOfGroup;
        int made = 0;
        measureScene("panelix-pick", makeScene(room, count, made), count);
        measureScene("panelix-pick-flat", makeFlatScene(count), count);
    }
    LuDB::finish();
}
