// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvGeometry.h"

#include <cmath>

namespace {

/// Below this sine or cosine two directions count as parallel or perpendicular: what float keeps of them.
constexpr float ANGLE_TOLERANCE = 1e-6F;

LvVec3f toUnit(const LvVec3f& direction, const LvVec3f& fallback) {
    const float length = direction.length();
    // What is of length 1 already keeps its numbers, however often it is written to a file and read.
    if (std::abs(length - 1) <= ANGLE_TOLERANCE)
        return direction;
    return length > 0 ? direction * (1 / length) : fallback;
}

} // namespace

LvLine LvLine::fromDirection(const LvVec3f& position, const LvVec3f& direction) {
    LvLine line;
    line.m_position = position;
    line.m_direction = toUnit(direction, LvVec3f());
    return line;
}

LvVec3f LvLine::getClosestPoint(const LvVec3f& point) const {
    return m_position + m_direction * m_direction.dot(point - m_position);
}

bool LvLine::getClosestPoints(const LvLine& other, LvVec3f& onThis, LvVec3f& onOther) const {
    const LvVec3f across = m_direction.cross(other.m_direction);
    const float square = across.dot(across);
    if (square <= ANGLE_TOLERANCE * ANGLE_TOLERANCE)
        return false;
    const LvVec3f between = other.m_position - m_position;
    onThis = m_position + m_direction * (between.cross(other.m_direction).dot(across) / square);
    onOther = other.m_position + other.m_direction * (between.cross(m_direction).dot(across) / square);
    return true;
}

LvPlane::LvPlane(const LvVec3f& normal, float distance)
    : m_normal(toUnit(normal, {0, 0, 1})), m_distance(distance) {}

LvPlane::LvPlane(const LvVec3f& normal, const LvVec3f& point)
    : m_normal(toUnit(normal, {0, 0, 1})), m_distance(m_normal.dot(point)) {}

bool LvPlane::intersect(const LvLine& line, LvVec3f& intersection) const {
    const float slope = m_normal.dot(line.getDirection());
    if (std::abs(slope) <= ANGLE_TOLERANCE)
        return false;
    intersection = line.getPosition() - line.getDirection() * (getDistance(line.getPosition()) / slope);
    return true;
}
