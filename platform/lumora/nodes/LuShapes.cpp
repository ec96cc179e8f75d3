// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuShapes.h"

#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/nodes/LuProperties.h"

#include <cmath>

LuNodeClass LuShape::s_class;

LU_NODE_SOURCE(LuCube, LuShape, "Cube")
LU_NODE_SOURCE(LuSphere, LuShape, "Sphere")
LU_NODE_SOURCE(LuCone, LuShape, "Cone")
LU_NODE_SOURCE(LuFaceSet, LuShape, "FaceSet")
LU_NODE_SOURCE(LuIndexedFaceSet, LuShape, "IndexedFaceSet")

void LuShape::initClass() {
    luInitNodeClass(s_class, LuNode::getClassTypeId(), LuNode::getFieldDataPtr(), "Shape", nullptr);
}

void LuShape::getBoundingBox(LuGetBoundingBoxAction* action) {
    LvBox3f box;
    computeBBox(action->getState(), box);
    action->extendBy(box);
    action->noteInheritedDepth(getInheritedDepth(action->getState()));
}

namespace {

LvBox3f makeCenteredBox(float halfX, float halfY, float halfZ) {
    return {{-halfX, -halfY, -halfZ}, {halfX, halfY, halfZ}};
}

} // namespace

LuCube::LuCube() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("width", width);
    constructor.field("height", height);
    constructor.field("depth", depth);
}

void LuCube::computeBBox(const LuTraversalState&, LvBox3f& box) const {
    box = makeCenteredBox(std::abs(width.getValue()) * 0.5F, std::abs(height.getValue()) * 0.5F,
                          std::abs(depth.getValue()) * 0.5F);
}

LuSphere::LuSphere() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("radius", radius);
}

void LuSphere::computeBBox(const LuTraversalState&, LvBox3f& box) const {
    const float size = std::abs(radius.getValue());
    box = makeCenteredBox(size, size, size);
}

LuCone::LuCone() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("bottomRadius", bottomRadius);
    constructor.field("height", height);
}

void LuCone::computeBBox(const LuTraversalState&, LvBox3f& box) const {
    const float size = std::abs(bottomRadius.getValue());
    box = makeCenteredBox(size, std::abs(height.getValue()) * 0.5F, size);
}

LuFaceSet::LuFaceSet() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("startIndex", startIndex);
    constructor.field("numVertices", numVertices);
}

int LuFaceSet::getInheritedDepth(const LuTraversalState& state) const { return state.coordinateDepth; }

void LuFaceSet::computeBBox(const LuTraversalState& state, LvBox3f& box) const {
    box.makeEmpty();
    const int available = state.coordinates ? state.coordinates->point.getNum() : 0;
    int point = std::max(startIndex.getValue(), 0);
    for (const int count : numVertices.getValues()) {
        const int left = std::max(available - point, 0);
        const int end = point + (count < 0 ? left : std::min(count, left));
        for (; point < end; ++point)
            box.extendBy(state.coordinates->point[point]);
    }
}

LuIndexedFaceSet::LuIndexedFaceSet() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("coordIndex", coordIndex);
}

int LuIndexedFaceSet::getInheritedDepth(const LuTraversalState& state) const { return state.coordinateDepth; }

void LuIndexedFaceSet::computeBBox(const LuTraversalState& state, LvBox3f& box) const {
    box.makeEmpty();
    const int available = state.coordinates ? state.coordinates->point.getNum() : 0;
    for (const int index : coordIndex.getValues()) {
        if (index >= 0 && index < available)
            box.extendBy(state.coordinates->point[index]);
    }
}
