// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvProjector.h"

#include <cmath>

namespace {

bool isFinite(const LvVec3f& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }

} // namespace

bool LvProjector::tryIntersect(const LvLine& worldRay, LvVec3f& point) {
    LvVec3f found;
    if (!meet(worldRay, found) || !isFinite(found))
        return false;
    m_last = found;
    point = found;
    return true;
}

LvVec3f LvProjector::intersect(const LvLine& worldRay) {
    LvVec3f point = m_last;
    tryIntersect(worldRay, point);
    return point;
}

bool LvProjector::tryProject(const LvVec2f& position, LvVec3f& point) {
    const LvLine ray = m_viewVolume.projectPointToLine(position);
    LvVec3f found;
    if (!meet(ray, found) || !isFinite(found))
        return false;
    // Beyond its horizon a plane would be met behind the eye, far off on the wrong side.
    const LvVec3f world = m_workingToWorld.transformPoint(found);
    const LvVec3f fromEye = world - m_viewVolume.getEye();
    if (m_viewVolume.isPerspective() && fromEye.dot(m_viewVolume.getSightDirection()) <= 0)
        return false;
    m_last = found;
    point = found;
    return true;
}

LvVec3f LvProjector::project(const LvVec2f& position) {
    LvVec3f point = m_last;
    tryProject(position, point);
    return point;
}

LvVec3f LvProjector::getVector(const LvVec2f& from, const LvVec2f& to) {
    const LvVec3f start = project(from);
    return project(to) - start;
}

LvVec3f LvProjector::getVector(const LvVec2f& to) {
    const LvVec3f start = m_last;
    return project(to) - start;
}

void LvLineProjector::setLine(const LvLine& line) {
    m_line = line;
    setStart(line.getPosition());
}

bool LvLineProjector::meet(const LvLine& worldRay, LvVec3f& point) const {
    // Nearness is that of the scene, whatever the working space stretches.
    const LvMatrix& toWorld = getWorkingSpace();
    const LvVec3f direction = toWorld.transformDirection(m_line.getDirection());
    const float length = direction.length();
    const LvLine worldLine = LvLine::fromDirection(toWorld.transformPoint(m_line.getPosition()), direction);
    LvVec3f onLine, onRay;
    // Written so that a length that is no number fails too.
    if (!(length > 0) || !worldLine.getClosestPoints(worldRay, onLine, onRay))
        return false;
    const float way = worldLine.getDirection().dot(onLine - worldLine.getPosition()) / length;
    point = m_line.getPosition() + m_line.getDirection() * way;
    return true;
}

void LvPlaneProjector::setPlane(const LvPlane& plane) {
    m_plane = plane;
    setStart(plane.getNormal() * plane.getDistanceFromOrigin());
}

bool LvPlaneProjector::meet(const LvLine& worldRay, LvVec3f& point) const {
    LvMatrix toWorking;
    if (!getWorkingSpace().getInverse(toWorking))
        return false;
    const LvLine ray = LvLine::fromDirection(toWorking.transformPoint(worldRay.getPosition()),
                                             toWorking.transformDirection(worldRay.getDirection()));
    return m_plane.intersect(ray, point);
}
