// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuCamera.h"

#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuRayPickAction.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

LuNodeClass LuCamera::s_class;

LU_NODE_SOURCE(LuPerspectiveCamera, LuCamera, "PerspectiveCamera")
LU_NODE_SOURCE(LuOrthographicCamera, LuCamera, "OrthographicCamera")

namespace {

/// A point in front of the camera is seen with something left before and behind it, so that it can move.
constexpr float DEPTH_SHARE = 0.5F;

} // namespace

void LuCamera::initClass() {
    luInitNodeClass(s_class, LuNode::getClassTypeId(), LuNode::getFieldDataPtr(), "Camera", nullptr);
}

void LuCamera::addFields(LuNodeConstructor& constructor) {
    constructor.field("position", position);
    constructor.field("orientation", orientation);
    constructor.field("aspectRatio", aspectRatio);
    constructor.field("nearDistance", nearDistance);
    constructor.field("farDistance", farDistance);
    constructor.field("focalDistance", focalDistance);
}

LvViewVolume LuCamera::getViewVolume(float aspect) const {
    LvViewVolume volume = makeViewVolume(aspect > 0 ? aspect : aspectRatio.getValue());
    volume.setPose(position.getValue(), orientation.getValue());
    return volume;
}

void LuCamera::doAction(LuAction* action) {
    if (const LvViewportRegion* region = action->getViewport())
        action->keepViewVolume(getViewVolume(region->getAspectRatio()));
}

void LuCamera::rayPick(LuRayPickAction* action) {
    action->look(getViewVolume(action->getViewportRegion().getAspectRatio()));
}

void LuCamera::pointAt(const LvVec3f& target) {
    const LvVec3f sight = target - position.getValue();
    const float length = sight.length();
    if (!(length > 0) || !std::isfinite(length))
        return;
    const LvVec3f back = sight * (-1 / length);
    LvVec3f right = LvVec3f(0, 1, 0).cross(back);
    // Straight up or down, where no up is up, x stays to the right.
    constexpr float LEAST_LENGTH = 1e-6F;
    right = right.length() > LEAST_LENGTH ? right * (1 / right.length()) : LvVec3f(1, 0, 0);
    const LvVec3f up = back.cross(right);
    LvMatrix axes;
    for (int row = 0; row < 3; ++row) {
        axes.at(0, row) = right[row];
        axes.at(1, row) = up[row];
        axes.at(2, row) = back[row];
    }
    LvVec3f translation, scale;
    LvRotation turned, scaleOrientation;
    axes.getTransform(translation, turned, scale, scaleOrientation);
    orientation.setValue(turned);
}

void LuCamera::viewAll(LuNode* node, const LvViewportRegion& region, float margin) {
    LuGetBoundingBoxAction action(region);
    action.apply(node);
    viewBox(action.getBoundingBox(), region.getAspectRatio(), margin);
}

void LuCamera::viewBox(const LvBox3f& box, float aspect, float margin) {
    if (box.isEmpty())
        return;
    const LvVec3f center = box.getCenter();
    const LvMatrix axes = LvMatrix::rotation(orientation.getValue());
    const LvMatrix toAxes = axes.inverse();
    constexpr float LARGEST_MARGIN = 0.49F;
    const float grown = 1 / (1 - 2 * std::clamp(margin, 0.0F, LARGEST_MARGIN));
    std::vector<LvVec3f> corners;
    float front = 0;
    float extent = 0;
    for (int i = 0; i < 8; ++i) {
        const LvVec3f corner(i & 1 ? box.max.x : box.min.x, i & 2 ? box.max.y : box.min.y,
                             i & 4 ? box.max.z : box.min.z);
        LvVec3f seen = toAxes.transformDirection(corner - center);
        front = std::max(front, seen.z);
        extent = std::max({extent, std::abs(seen.x), std::abs(seen.y), std::abs(seen.z)});
        seen.x *= grown;
        seen.y *= grown;
        corners.push_back(seen);
    }
    if (!(extent > 0))
        extent = 1;
    const float distance = fit(corners, aspect > 0 ? aspect : aspectRatio.getValue(), front + extent);
    position.setValue(center + axes.transformDirection({0, 0, distance}));
    focalDistance.setValue(distance);
    // What lies at the back is no farther behind the centre than the front is before it.
    nearDistance.setValue((distance - front) * DEPTH_SHARE);
    farDistance.setValue((distance + front) / DEPTH_SHARE);
}

LuPerspectiveCamera::LuPerspectiveCamera() : heightAngle(std::numbers::pi_v<float> / 4) {
    LuNodeConstructor constructor(s_class, this);
    addFields(constructor);
    constructor.field("heightAngle", heightAngle);
}

LvViewVolume LuPerspectiveCamera::makeViewVolume(float aspect) const {
    return LvViewVolume::perspective(heightAngle.getValue(), aspect, nearDistance.getValue(),
                                     farDistance.getValue());
}

float LuPerspectiveCamera::fit(const std::vector<LvVec3f>& corners, float aspect, float) {
    const LvVec2f size = LvViewVolume::perspective(heightAngle.getValue(), aspect, 1, 2).getNearSize();
    float distance = 0;
    for (const LvVec3f& corner : corners)
        distance = std::max({distance, corner.z + std::abs(corner.x) * 2 / size.x,
                             corner.z + std::abs(corner.y) * 2 / size.y});
    // A box that is no more than its own line of sight would touch the eye.
    return distance > 0 ? distance : 1;
}

LuOrthographicCamera::LuOrthographicCamera() {
    LuNodeConstructor constructor(s_class, this);
    addFields(constructor);
    constructor.field("height", height);
}

LvViewVolume LuOrthographicCamera::makeViewVolume(float aspect) const {
    return LvViewVolume::orthographic(height.getValue(), aspect, nearDistance.getValue(),
                                      farDistance.getValue());
}

float LuOrthographicCamera::fit(const std::vector<LvVec3f>& corners, float aspect, float leastDistance) {
    float needed = 0;
    for (const LvVec3f& corner : corners)
        needed = std::max({needed, std::abs(corner.y) * 2, std::abs(corner.x) * 2 / aspect});
    if (needed > 0)
        height.setValue(needed);
    return leastDistance;
}
