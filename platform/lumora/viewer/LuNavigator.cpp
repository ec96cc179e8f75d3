// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/LuNavigator.h"

#include "platform/lumora/base/LvBox3f.h"
#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/nodes/LuCamera.h"

#include <glm/gtc/quaternion.hpp>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr float PI = std::numbers::pi_v<float>;

/// The limits of distances and sizes. Squares of them still are numbers.
constexpr float LEAST = 1e-6F;
constexpr float LARGEST = 1e15F;

/// What a click of the wheel does.
constexpr float WHEEL_FACTOR = 1.15F;

/// What Home leaves free on each side.
constexpr float MARGIN = 0.05F;

bool isFinite(const LvVec3f& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }

bool isPositive(float number) { return number > 0 && std::isfinite(number); }

bool isOrthographic(const LuCamera& camera) {
    return camera.isOfType(LuOrthographicCamera::getClassTypeId());
}

/// The distance of the focus. Where the field has none it lies in the middle of what is seen.
float getFocalDistance(const LuCamera& camera) {
    const float distance = camera.focalDistance.getValue();
    if (isPositive(distance))
        return std::clamp(distance, LEAST, LARGEST);
    const LvViewVolume volume = camera.getViewVolume();
    const float middle = (volume.getNearDistance() + volume.getFarDistance()) / 2;
    return isPositive(middle) ? std::clamp(middle, LEAST, LARGEST) : 1.0F;
}

void setPosition(LuCamera& camera, const LvVec3f& position) {
    if (isFinite(position))
        camera.position.setValue(position);
}

glm::quat toQuaternion(const LvRotation& rotation) {
    return glm::normalize(glm::quat(rotation.w, rotation.x, rotation.y, rotation.z));
}

void setWhenDifferent(LuSFFloat& field, float value) {
    if (field.getValue() != value)
        field.setValue(value);
}

} // namespace

bool LuNavigator::handleEvent(const LuEvent& event, LuCamera& camera, LuNode* scene,
                              const LvViewportRegion& region) {
    if (event.isOfType(LuMouseButtonEvent::getClassTypeId()))
        return handleButton(static_cast<const LuMouseButtonEvent&>(event), camera);
    if (event.isOfType(LuLocation2Event::getClassTypeId())) {
        if (!isDragging())
            return false;
        drag(event.getPosition(), camera, region);
        return true;
    }
    if (LuKeyboardEvent::isKeyPressEvent(&event, LuKeyboardEvent::HOME) ||
        LuKeyboardEvent::isKeyPressEvent(&event, LuKeyboardEvent::PAD_HOME)) {
        if (scene)
            camera.viewAll(scene, region, MARGIN);
        return true;
    }
    return false;
}

bool LuNavigator::handleButton(const LuMouseButtonEvent& event, LuCamera& camera) {
    const int button = event.getButton();
    if (event.getState() == LuButtonEvent::UP) {
        const bool isEnd = isDragging() && button == m_button;
        if (isEnd)
            endDrag();
        return isEnd;
    }
    if (button == LuMouseButtonEvent::WHEEL_UP || button == LuMouseButtonEvent::WHEEL_DOWN) {
        zoom(camera, button == LuMouseButtonEvent::WHEEL_UP ? WHEEL_FACTOR : 1 / WHEEL_FACTOR);
        return true;
    }
    // One drag at a time.
    if (isDragging())
        return true;
    const bool isRight = button == LuMouseButtonEvent::BUTTON3;
    if (button == LuMouseButtonEvent::BUTTON2 || (isRight && event.wasShiftDown()))
        m_drag = PAN;
    else if (isRight || button == LuMouseButtonEvent::BUTTON1)
        m_drag = ORBIT;
    m_button = button;
    m_position = event.getPosition();
    return isDragging();
}

void LuNavigator::drag(const LvVec2i32& position, LuCamera& camera, const LvViewportRegion& region) {
    const LvVec2f from = region.getNormalizedPosition(m_position);
    const LvVec2f to = region.getNormalizedPosition(position);
    m_position = position;
    if (from == to)
        return;
    const float aspect = region.getAspectRatio();
    if (m_drag == PAN)
        pan(camera, aspect, from, to);
    else
        // The scene follows the pointer, so the camera goes the other way.
        orbit(camera, (from.x - to.x) * aspect * PI, (from.y - to.y) * PI);
}

void LuNavigator::orbit(LuCamera& camera, float right, float up) {
    if (!std::isfinite(right) || !std::isfinite(up))
        return;
    const LvViewVolume volume = camera.getViewVolume();
    const float distance = getFocalDistance(camera);
    const LvVec3f sight = volume.getSightDirection();
    const LvVec3f focus = volume.getEye() + sight * distance;
    // Where it looks; it moves up as its look goes down. One that is at the pole already may leave it.
    constexpr float POLE = PI / 2 - 0.001F;
    const float height = std::asin(std::clamp(sight.y, -1.0F, 1.0F));
    const float newHeight = std::clamp(height - up, std::min(-POLE, height), std::max(POLE, height));
    const glm::quat before = toQuaternion(volume.getOrientation());
    const glm::quat turned = glm::normalize(glm::angleAxis(right, glm::vec3(0, 1, 0)) * before *
                                            glm::angleAxis(newHeight - height, glm::vec3(1, 0, 0)));
    const LvRotation orientation(turned.x, turned.y, turned.z, turned.w);
    const LvVec3f back = LvMatrix::rotation(orientation).transformDirection({0, 0, distance});
    if (!isFinite(focus + back))
        return;
    camera.orientation.setValue(orientation);
    setPosition(camera, focus + back);
    setWhenDifferent(camera.focalDistance, distance);
}

void LuNavigator::pan(LuCamera& camera, float aspect, const LvVec2f& from, const LvVec2f& to) {
    const LvViewVolume volume = camera.getViewVolume(aspect);
    const float distance = getFocalDistance(camera);
    setPosition(camera,
                volume.getEye() + volume.getPlanePoint(distance, from) - volume.getPlanePoint(distance, to));
    setWhenDifferent(camera.focalDistance, distance);
}

void LuNavigator::zoom(LuCamera& camera, float factor) {
    if (!isPositive(factor))
        return;
    const LvViewVolume volume = camera.getViewVolume();
    if (isOrthographic(camera)) {
        auto& height = static_cast<LuOrthographicCamera&>(camera).height;
        height.setValue(std::clamp(volume.getNearSize().y / factor, LEAST, LARGEST));
        return;
    }
    const float distance = getFocalDistance(camera);
    const float newDistance = std::clamp(distance / factor, LEAST, LARGEST);
    setPosition(camera, volume.getEye() + volume.getSightDirection() * (distance - newDistance));
    camera.focalDistance.setValue(newDistance);
}

void LuNavigator::fitDepth(LuCamera& camera, const LvBox3f& box) {
    if (box.isEmpty() || !isFinite(box.min) || !isFinite(box.max))
        return;
    const LvViewVolume volume = camera.getViewVolume();
    const LvVec3f sight = volume.getSightDirection();
    float nearest = LARGEST;
    float farthest = -LARGEST;
    for (int i = 0; i < 8; ++i) {
        const LvVec3f corner(i & 1 ? box.max.x : box.min.x, i & 2 ? box.max.y : box.min.y,
                             i & 4 ? box.max.z : box.min.z);
        const float depth = sight.dot(corner - volume.getEye());
        nearest = std::min(nearest, depth);
        farthest = std::max(farthest, depth);
    }
    // Something is left on both sides: for rounding, and for what moves a little.
    const float spare = (farthest - nearest) * 0.1F + std::max(std::abs(nearest), std::abs(farthest)) * 0.01F;
    nearest -= spare;
    farthest += spare;
    if (volume.isPerspective()) {
        // Behind the camera nothing can be seen, and at the eye itself the depth buffer has no room.
        constexpr float LEAST_SHARE = 1e-3F;
        if (farthest <= 0)
            return;
        nearest = std::max(nearest, farthest * LEAST_SHARE);
    }
    if (!std::isfinite(nearest) || !std::isfinite(farthest) || nearest >= farthest)
        return;
    setWhenDifferent(camera.nearDistance, nearest);
    setWhenDifferent(camera.farDistance, farthest);
}
