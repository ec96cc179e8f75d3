// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"

#include <glm/vec3.hpp>
#include <limits>

class LvBox3f;

/// The ray of a pick, in some space. The direction may have any length: a place on the ray is told by the
/// multiple of it, which is the same number in all spaces of a scene.
///
/// Numbers are of double precision: a ray is brought through many spaces, and a hit's place must not suffer.
struct LuPickRay {
    glm::dvec3 origin{0, 0, 0};
    glm::dvec3 direction{0, 0, -1};

    glm::dvec3 getPoint(double place) const { return origin + direction * place; }
};

/// Where a ray meets a shape first, within the part of the ray that counts.
class LuPickHit {
public:
    /// Only places from `nearest` to `farthest` count, and only those below `limit`.
    LuPickHit(double nearest, double farthest, double limit)
        : m_nearest(nearest), m_farthest(farthest), m_place(limit) {}

    /// A surface of the shape is met at a place; `normal` points away from it, and may have any length.
    void offer(double place, const glm::dvec3& normal) {
        if (!(place >= m_nearest && place <= m_farthest && place < m_place))
            return;
        m_place = place;
        m_normal = normal;
        m_isFound = true;
    }

    bool isFound() const { return m_isFound; }
    double getPlace() const { return m_place; }
    const glm::dvec3& getNormal() const { return m_normal; }

private:
    double m_nearest;
    double m_farthest;
    double m_place;
    glm::dvec3 m_normal{0, 0, 1};
    bool m_isFound = false;
};

/// The part of a ray that lies in a box; false, and nothing is set, when there is none. A box may be flat.
bool luCrossBox(const LuPickRay& ray, const LvBox3f& box, double& from, double& to);

/// Offer all places where the ray meets the surface of a shape about the origin, or of a triangle.
void luIntersectBox(const LuPickRay& ray, const LvBox3f& box, LuPickHit& hit);
void luIntersectSphere(const LuPickRay& ray, double radius, LuPickHit& hit);
void luIntersectCone(const LuPickRay& ray, double bottomRadius, double height, LuPickHit& hit);
void luIntersectTriangle(const LuPickRay& ray, const LvVec3f& a, const LvVec3f& b, const LvVec3f& c,
                         LuPickHit& hit);
