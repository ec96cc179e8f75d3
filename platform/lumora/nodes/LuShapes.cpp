// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuShapes.h"

#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuRayPickAction.h"
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

void LuShape::rayPick(LuRayPickAction* action) {
    const LuTraversalState& state = action->getState();
    const LuPickRay* const ray = action->getObjectRay();
    if (!ray || state.pickStyle == LuPickStyle::UNPICKABLE)
        return;
    LuPickHit hit = action->makeHit();
    if (state.pickStyle == LuPickStyle::BOUNDING_BOX)
        LuShape::intersect(state, *ray, hit);
    else
        intersect(state, *ray, hit);
    action->addHit(hit);
}

void LuShape::intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const {
    LvBox3f box;
    computeBBox(state, box);
    luIntersectBox(ray, box, hit);
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

void LuSphere::intersect(const LuTraversalState&, const LuPickRay& ray, LuPickHit& hit) const {
    luIntersectSphere(ray, double{radius.getValue()}, hit);
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

void LuCone::intersect(const LuTraversalState&, const LuPickRay& ray, LuPickHit& hit) const {
    luIntersectCone(ray, std::abs(double{bottomRadius.getValue()}), std::abs(double{height.getValue()}), hit);
}

namespace {

/// Offers where the ray meets polygons.
void intersectPolygons(const std::vector<LuContour>& polygons, const LuPickRay& ray, LuPickHit& hit) {
    std::vector<LvVec3f> corners;
    for (const LuContour& polygon : polygons) {
        LvBox3f box;
        for (const LvVec3f& point : polygon)
            box.extendBy(point);
        double from = 0;
        double to = 0;
        if (luCrossBox(ray, box, from, to))
            luTriangulatePolygon(polygon, corners);
    }
    for (std::size_t i = 0; i + 2 < corners.size(); i += 3)
        luIntersectTriangle(ray, corners[i], corners[i + 1], corners[i + 2], hit);
}

} // namespace

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

std::vector<LuContour> LuFaceSet::getPolygons(const LuTraversalState& state) const {
    std::vector<LuContour> polygons;
    const int available = state.coordinates ? state.coordinates->point.getNum() : 0;
    int point = std::max(startIndex.getValue(), 0);
    for (const int count : numVertices.getValues()) {
        const int left = std::max(available - point, 0);
        const int end = point + (count < 0 ? left : std::min(count, left));
        LuContour polygon;
        for (; point < end; ++point)
            polygon.push_back(state.coordinates->point[point]);
        if (polygon.size() > 2)
            polygons.push_back(std::move(polygon));
    }
    return polygons;
}

void LuFaceSet::intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const {
    intersectPolygons(getPolygons(state), ray, hit);
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

std::vector<LuContour> LuIndexedFaceSet::getPolygons(const LuTraversalState& state) const {
    std::vector<LuContour> polygons;
    const int available = state.coordinates ? state.coordinates->point.getNum() : 0;
    LuContour polygon;
    const auto finish = [&polygons, &polygon] {
        if (polygon.size() > 2)
            polygons.push_back(std::move(polygon));
        polygon = {};
    };
    for (const int index : coordIndex.getValues()) {
        if (index < 0)
            finish();
        else if (index < available)
            polygon.push_back(state.coordinates->point[index]);
    }
    finish();
    return polygons;
}

void LuIndexedFaceSet::intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const {
    intersectPolygons(getPolygons(state), ray, hit);
}
