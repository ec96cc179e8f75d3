// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuRayPickAction.h"

#include "platform/lumora/nodes/LuNode.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <glm/geometric.hpp>
#include <glm/mat3x3.hpp>
#include <glm/matrix.hpp>

namespace {

/// The share by which a product with an inverse may differ from a quotient, and more.
constexpr double ROUNDING = 1e-12;

glm::dvec3 toDouble(const LvVec3f& v) { return {v.x, v.y, v.z}; }

LvVec3f toFloat(const glm::dvec3& v) {
    return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
}

bool isFinite(const glm::dvec3& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }

/// Different zeros count as different, which only costs another computation.
bool isSame(const LvMatrix& left, const LvMatrix& right) {
    return std::memcmp(&left, &right, sizeof(LvMatrix)) == 0;
}

LvVec3f toUnit(const glm::dvec3& v) {
    const double length = glm::length(v);
    return toFloat(length > 0 ? v / length : v);
}

} // namespace

LuRayPickAction::LuRayPickAction(const LvViewportRegion& region) : m_region(region), m_boxAction(region) {
    keepSteps();
}

LuRayPickAction::~LuRayPickAction() = default;

void LuRayPickAction::setNormalizedPoint(const LvVec2f& position) { m_position = position; }

void LuRayPickAction::setRay(const LvLine& line, double nearDistance, double farDistance) {
    m_position.reset();
    m_line = line;
    m_lineNear = nearDistance;
    m_lineFar = farDistance;
}

void LuRayPickAction::visit(LuNode* node) { node->rayPick(this); }

void LuRayPickAction::begin() {
    m_points.clear();
    m_sorted.clear();
    m_hitCount = 0;
    m_isMeasured = false;
    m_hasRay = false;
    m_isObjectRayKnown = false;
    if (!m_position)
        startRay(m_line, m_lineNear, m_lineFar);
    else if (m_startVolume)
        look(*m_startVolume);
}

void LuRayPickAction::startRay(const LvLine& line, double nearest, double farthest) {
    m_worldRay.origin = toDouble(line.getPosition());
    m_worldRay.direction = toDouble(line.getDirection());
    const double length = glm::length(m_worldRay.direction);
    m_hasRay = length > 0 && isFinite(m_worldRay.origin);
    // Float gives a length of 1 only nearly; with it exact, places on the ray are distances.
    if (m_hasRay)
        m_worldRay.direction /= length;
    m_nearest = nearest;
    m_farthest = farthest;
    m_isObjectRayKnown = false;
}

void LuRayPickAction::look(const LvViewVolume& volume) {
    keepViewVolume(volume);
    if (!m_position)
        return;
    LvVec3f nearPoint, farPoint;
    volume.projectPointToLine(*m_position, nearPoint, farPoint);
    startRay(volume.projectPointToLine(*m_position), 0,
             glm::length(toDouble(farPoint) - toDouble(nearPoint)));
}

void LuRayPickAction::clip(const LvPlane& plane) {
    const LuPickRay* const ray = getObjectRay();
    if (!ray)
        return;
    const glm::dvec3 normal = toDouble(plane.getNormal());
    const double slope = glm::dot(normal, ray->direction);
    const double height = glm::dot(normal, ray->origin) - double{plane.getDistanceFromOrigin()};
    if (slope > 0)
        m_nearest = std::max(m_nearest, -height / slope);
    else if (slope < 0)
        m_farthest = std::min(m_farthest, -height / slope);
    else if (height < 0)
        m_farthest = -std::numeric_limits<double>::infinity();
}

double LuRayPickAction::getLimit() const {
    return m_isPickAll || m_points.empty() ? std::numeric_limits<double>::infinity()
                                           : m_points.front()->getDistance();
}

bool LuRayPickAction::computeObjectRay() {
    const glm::dmat4 model(m_objectModel.glm());
    const glm::dmat3 axes(model);
    const double determinant = glm::determinant(axes);
    // Written so that a number that is none fails.
    if (!(std::abs(determinant) > 0))
        return false;
    const glm::dmat3 toObject = glm::inverse(axes);
    m_objectRay.origin = toObject * (m_worldRay.origin - glm::dvec3(model[3]));
    m_objectRay.direction = toObject * m_worldRay.direction;
    m_objectInverse = 1.0 / m_objectRay.direction;
    return isFinite(m_objectRay.origin) && isFinite(m_objectRay.direction);
}

const LuPickRay* LuRayPickAction::getObjectRay() {
    if (!m_hasRay)
        return nullptr;
    if (!m_isObjectRayKnown || !isSame(m_objectModel, m_state.model)) {
        m_objectModel = m_state.model;
        m_isObjectRayKnown = true;
        m_hasObjectRay = computeObjectRay();
    }
    return m_hasObjectRay ? &m_objectRay : nullptr;
}

bool LuRayPickAction::mayMeet(const LvBox3f& box) {
    if (box.isEmpty())
        return false;
    double from = m_nearest;
    double to = std::min(m_farthest, getLimit());
    for (int axis = 0; axis < 3; ++axis) {
        const double low = double{box.min[axis]} - m_objectRay.origin[axis];
        const double high = double{box.max[axis]} - m_objectRay.origin[axis];
        const double inverse = m_objectInverse[axis];
        if (std::isinf(inverse)) {
            if (low > 0 || high < 0)
                return false;
            continue;
        }
        from = std::max(from, (inverse > 0 ? low : high) * inverse);
        to = std::min(to, (inverse > 0 ? high : low) * inverse);
    }
    // The shapes' own tests divide. What they would just meet must not be lost by another rounding here.
    return from <= to + ROUNDING * std::abs(to);
}

bool LuRayPickAction::mayMeet(LuNode* node, const LuBoundingBoxCache& cache) {
    // The camera may be below.
    if (!m_hasRay)
        return true;
    if (!getObjectRay())
        return false;
    if (cache.isValid())
        return mayMeet(cache.getBox());
    if (m_isMeasured)
        return true;
    m_isMeasured = true;
    return mayMeet(m_boxAction.measure(node, m_state));
}

void LuRayPickAction::bringBack(const Saved& saved) {
    m_state = saved.state;
    m_nearest = saved.nearest;
    m_farthest = saved.farthest;
    // The ray is another one only behind a camera.
    if (m_hasRay != saved.hasRay || m_worldRay.origin != saved.ray.origin ||
        m_worldRay.direction != saved.ray.direction) {
        m_hasRay = saved.hasRay;
        m_worldRay = saved.ray;
        m_isObjectRayKnown = false;
    }
}

void LuRayPickAction::addHit(const LuPickHit& hit) {
    if (!hit.isFound())
        return;
    const glm::dvec3 world = m_worldRay.getPoint(hit.getPlace());
    const glm::dvec3 object = getObjectRay()->getPoint(hit.getPlace());
    const glm::dmat3 normalMatrix = glm::transpose(glm::inverse(glm::dmat3(glm::dmat4(m_state.model.glm()))));
    const LuPickedPoint::Place inWorld{toFloat(world), toUnit(normalMatrix * hit.getNormal())};
    const LuPickedPoint::Place inObject{toFloat(object), toUnit(hit.getNormal())};
    if (!m_isPickAll)
        m_points.clear();
    m_points.push_back(
        std::make_unique<LuPickedPoint>(makePath(getCurrentSteps()), inWorld, inObject, hit.getPlace()));
    m_sorted.clear();
    ++m_hitCount;
}

LuPickedPoint* LuRayPickAction::getUnsortedPickedPoint(int index) {
    return index >= 0 && index < getPickedPointsListLength() ? m_points[static_cast<std::size_t>(index)].get()
                                                             : nullptr;
}

LuPickedPoint* LuRayPickAction::getPickedPoint(int index) {
    if (index < 0 || index >= getPickedPointsListLength())
        return nullptr;
    if (m_sorted.empty()) {
        for (const auto& point : m_points)
            m_sorted.push_back(point.get());
        std::stable_sort(m_sorted.begin(), m_sorted.end(),
                         [](const auto* a, const auto* b) { return a->getDistance() < b->getDistance(); });
    }
    return m_sorted[static_cast<std::size_t>(index)];
}
