// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuPickRay.h"

#include "platform/lumora/base/LvBox3f.h"

#include <algorithm>
#include <cmath>
#include <glm/geometric.hpp>
#include <utility>

namespace {

/// Edges of triangles are widened by this share of the triangle, so that no ray slips through between two.
constexpr double EDGE_TOLERANCE = 1e-9;

glm::dvec3 toDouble(const LvVec3f& v) { return {v.x, v.y, v.z}; }

glm::dvec3 getAxis(int axis, double sign) {
    glm::dvec3 result(0.0);
    result[axis] = sign;
    return result;
}

/// The part of the ray between the two planes of the box that cross an axis.
bool crossSlab(const LuPickRay& ray, const LvBox3f& box, int axis, double& from, double& to) {
    const double origin = ray.origin[axis];
    const double direction = ray.direction[axis];
    const double low = double{box.min[axis]} - origin;
    const double high = double{box.max[axis]} - origin;
    if (direction == 0) {
        from = -std::numeric_limits<double>::infinity();
        to = std::numeric_limits<double>::infinity();
        return low <= 0 && high >= 0;
    }
    from = (direction > 0 ? low : high) / direction;
    to = (direction > 0 ? high : low) / direction;
    return true;
}

} // namespace

bool luCrossBox(const LuPickRay& ray, const LvBox3f& box, double& from, double& to) {
    double begin = -std::numeric_limits<double>::infinity();
    double end = std::numeric_limits<double>::infinity();
    for (int axis = 0; axis < 3; ++axis) {
        double enter = 0;
        double leave = 0;
        if (!crossSlab(ray, box, axis, enter, leave))
            return false;
        begin = std::max(begin, enter);
        end = std::min(end, leave);
    }
    if (!(begin <= end))
        return false;
    from = begin;
    to = end;
    return true;
}

void luIntersectBox(const LuPickRay& ray, const LvBox3f& box, LuPickHit& hit) {
    double from = 0;
    double to = 0;
    if (box.isEmpty() || !luCrossBox(ray, box, from, to))
        return;
    // The faces by which the ray comes in and goes out are those whose planes it crosses there.
    for (int axis = 0; axis < 3; ++axis) {
        double enter = 0;
        double leave = 0;
        crossSlab(ray, box, axis, enter, leave);
        const double sign = ray.direction[axis] > 0 ? 1 : -1;
        if (enter == from)
            hit.offer(from, getAxis(axis, -sign));
        if (leave == to)
            hit.offer(to, getAxis(axis, sign));
    }
}

void luIntersectSphere(const LuPickRay& ray, double radius, LuPickHit& hit) {
    const double a = glm::dot(ray.direction, ray.direction);
    if (a == 0 || radius == 0)
        return;
    // From the point of the ray nearest to the middle: the difference of large squares would cost digits.
    const double middle = -glm::dot(ray.origin, ray.direction) / a;
    const glm::dvec3 nearest = ray.getPoint(middle);
    const double square = radius * radius - glm::dot(nearest, nearest);
    if (!(square >= 0))
        return;
    const double half = std::sqrt(square / a);
    for (const double place : {middle - half, middle + half})
        hit.offer(place, ray.getPoint(place));
}

void luIntersectCone(const LuPickRay& ray, double bottomRadius, double height, LuPickHit& hit) {
    const double half = height / 2;
    const glm::dvec3& d = ray.direction;
    if (d.y != 0) {
        const double place = (-half - ray.origin.y) / d.y;
        const glm::dvec3 point = ray.getPoint(place);
        if (point.x * point.x + point.z * point.z <= bottomRadius * bottomRadius)
            hit.offer(place, {0, -1, 0});
    }
    if (height == 0)
        return;
    // From the tip, the side is where x2 + z2 = (slope y)2.
    const double slope = bottomRadius / height;
    const double square = slope * slope;
    const glm::dvec3 o(ray.origin.x, ray.origin.y - half, ray.origin.z);
    const double a = d.x * d.x + d.z * d.z - square * d.y * d.y;
    const double b = o.x * d.x + o.z * d.z - square * o.y * d.y;
    const double c = o.x * o.x + o.z * o.z - square * o.y * o.y;
    const auto offerSide = [&](double place) {
        const glm::dvec3 point = ray.getPoint(place);
        const glm::dvec3 normal(point.x, square * (half - point.y), point.z);
        if (point.y >= -half && point.y <= half)
            hit.offer(place, normal == glm::dvec3(0.0) ? glm::dvec3(0, 1, 0) : normal);
    };
    // Parallel to the side a ray meets it once.
    constexpr double PARALLEL = 1e-12;
    if (std::abs(a) <= PARALLEL * glm::dot(d, d)) {
        if (b != 0)
            offerSide(-c / (2 * b));
        return;
    }
    const double discriminant = b * b - a * c;
    if (!(discriminant >= 0))
        return;
    const double root = std::sqrt(discriminant);
    offerSide((-b - root) / a);
    offerSide((-b + root) / a);
}

void luIntersectTriangle(const LuPickRay& ray, const LvVec3f& a, const LvVec3f& b, const LvVec3f& c,
                         LuPickHit& hit) {
    const glm::dvec3 corner = toDouble(a);
    const glm::dvec3 side1 = toDouble(b) - corner;
    const glm::dvec3 side2 = toDouble(c) - corner;
    const glm::dvec3 normal = glm::cross(side1, side2);
    const double slope = glm::dot(normal, ray.direction);
    if (slope == 0)
        return;
    const glm::dvec3 toOrigin = ray.origin - corner;
    const glm::dvec3 across = glm::cross(ray.direction, toOrigin);
    const double u = glm::dot(side2, across) / slope;
    const double v = -glm::dot(side1, across) / slope;
    // Written so that numbers that are none fail.
    if (u >= -EDGE_TOLERANCE && v >= -EDGE_TOLERANCE && u + v <= 1 + EDGE_TOLERANCE)
        hit.offer(-glm::dot(normal, toOrigin) / slope, normal);
}
