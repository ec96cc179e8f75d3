// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvViewVolume.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// The least angle of a pyramid, and what its greatest lacks of pi.
constexpr float LEAST_ANGLE = 1e-3F;

/// The near plane of a pyramid lies at least at this share of the distance of the far one: below it a depth
/// buffer of 24 bits can't tell surfaces apart any more.
constexpr float LEAST_NEAR_SHARE = 1e-6F;

/// Nothing is farther, or larger; squares of it still are numbers.
constexpr float LARGEST = 1e18F;

float limit(float number, float least, float otherwise) {
    return number >= least ? std::min(number, LARGEST) : otherwise;
}

LvVec3f turn(const LvRotation& rotation, const LvVec3f& direction) {
    return LvMatrix::rotation(rotation).transformDirection(direction);
}

LvRotation invert(const LvRotation& rotation) { return {-rotation.x, -rotation.y, -rotation.z, rotation.w}; }

bool isFinite(const LvVec3f& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }

} // namespace

LvViewVolume LvViewVolume::make(bool isPerspective, float halfHeight, float aspect, float nearDistance,
                                float farDistance) {
    LvViewVolume volume;
    volume.m_isPerspective = isPerspective;
    volume.m_near = nearDistance;
    volume.m_far = farDistance;
    volume.m_halfHeight = halfHeight;
    constexpr float LEAST_ASPECT = 1e-6F;
    volume.m_halfWidth = halfHeight * limit(aspect, LEAST_ASPECT, 1);
    return volume;
}

LvViewVolume LvViewVolume::perspective(float heightAngle, float aspect, float nearDistance,
                                       float farDistance) {
    constexpr float LEAST_FAR = 1e-6F;
    const float farEnd = limit(farDistance, LEAST_FAR, 10);
    const float nearEnd = std::min(limit(nearDistance, farEnd * LEAST_NEAR_SHARE, farEnd * LEAST_NEAR_SHARE),
                                   farEnd * (1 - LEAST_NEAR_SHARE));
    constexpr float PI = std::numbers::pi_v<float>;
    const float angle = std::min(limit(heightAngle, LEAST_ANGLE, LEAST_ANGLE), PI - LEAST_ANGLE);
    return make(true, nearEnd * std::tan(angle / 2), aspect, nearEnd, farEnd);
}

LvViewVolume LvViewVolume::orthographic(float height, float aspect, float nearDistance, float farDistance) {
    constexpr float LEAST_HEIGHT = 1e-6F;
    const float nearEnd = limit(nearDistance, -LARGEST, 0);
    const float depth = std::max(std::abs(nearEnd) * LEAST_NEAR_SHARE, LEAST_NEAR_SHARE);
    const float farEnd = limit(farDistance, nearEnd + depth, nearEnd + std::max(depth, 1.0F));
    return make(false, limit(height, LEAST_HEIGHT, 2) / 2, aspect, nearEnd, farEnd);
}

void LvViewVolume::setPose(const LvVec3f& position, const LvRotation& orientation) {
    m_eye = isFinite(position) ? position : LvVec3f();
    const float square = orientation.x * orientation.x + orientation.y * orientation.y +
                         orientation.z * orientation.z + orientation.w * orientation.w;
    m_orientation = std::isfinite(square) && square > 0 ? orientation : LvRotation();
}

LvVec3f LvViewVolume::getSightDirection() const { return turn(m_orientation, {0, 0, -1}); }

LvVec3f LvViewVolume::getUpDirection() const { return turn(m_orientation, {0, 1, 0}); }

LvVec3f LvViewVolume::fromEyeSpace(const LvVec3f& point) const { return m_eye + turn(m_orientation, point); }

LvVec3f LvViewVolume::toEyeSpace(const LvVec3f& point) const {
    return turn(invert(m_orientation), point - m_eye);
}

LvVec3f LvViewVolume::getPlanePoint(float distance, const LvVec2f& point) const {
    const float grown = m_isPerspective ? distance / m_near : 1;
    return fromEyeSpace(
        {(point.x * 2 - 1) * m_halfWidth * grown, (point.y * 2 - 1) * m_halfHeight * grown, -distance});
}

void LvViewVolume::projectPointToLine(const LvVec2f& point, LvVec3f& nearPoint, LvVec3f& farPoint) const {
    nearPoint = getPlanePoint(m_near, point);
    farPoint = getPlanePoint(m_far, point);
}

LvLine LvViewVolume::projectPointToLine(const LvVec2f& point) const {
    const LvVec3f nearPoint = getPlanePoint(m_near, point);
    // Not through the far point: near and far may be so close that float can't tell the direction.
    return LvLine::fromDirection(nearPoint, m_isPerspective ? nearPoint - m_eye : getSightDirection());
}

LvVec3f LvViewVolume::projectToScreen(const LvVec3f& point) const {
    const LvVec3f seen = toEyeSpace(point);
    const float distance = -seen.z;
    if (m_isPerspective && distance == 0)
        return {0.5F, 0.5F, 0};
    const float grown = m_isPerspective ? distance / m_near : 1;
    const float share = (distance - m_near) / (m_far - m_near);
    return {(seen.x / (m_halfWidth * grown) + 1) / 2, (seen.y / (m_halfHeight * grown) + 1) / 2,
            m_isPerspective ? share * m_far / distance : share};
}

LvPlane LvViewVolume::getPlane(float distance) const {
    return {-getSightDirection(), m_eye + getSightDirection() * distance};
}

float LvViewVolume::getWorldToScreenScale(const LvVec3f& center, float share) const {
    const float grown = m_isPerspective ? std::abs(toEyeSpace(center).z) / m_near : 1;
    return m_halfHeight * 2 * grown * share;
}

LvMatrix LvViewVolume::getViewMatrix() const {
    return LvMatrix::rotation(invert(m_orientation)) * LvMatrix::translation(-m_eye);
}

LvMatrix LvViewVolume::getProjectionMatrix() const {
    LvMatrix matrix;
    const float depth = m_far - m_near;
    if (m_isPerspective) {
        matrix.at(0, 0) = m_near / m_halfWidth;
        matrix.at(1, 1) = m_near / m_halfHeight;
        matrix.at(2, 2) = -(m_far + m_near) / depth;
        matrix.at(2, 3) = -1;
        matrix.at(3, 2) = -2 * m_far * m_near / depth;
        matrix.at(3, 3) = 0;
    } else {
        matrix.at(0, 0) = 1 / m_halfWidth;
        matrix.at(1, 1) = 1 / m_halfHeight;
        matrix.at(2, 2) = -2 / depth;
        matrix.at(3, 2) = -(m_far + m_near) / depth;
    }
    return matrix;
}
