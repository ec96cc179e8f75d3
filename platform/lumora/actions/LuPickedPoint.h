// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuDetail.h"
#include "platform/lumora/actions/LuPath.h"
#include "platform/lumora/base/LvVec.h"

#include <memory>

/// Where a ray met a shape. It belongs to the action, until that is applied again, and holds references to
/// the nodes of its path.
class LuPickedPoint {
public:
    /// A place and the direction away from the surface there, of length 1.
    struct Place {
        LvVec3f point;
        LvVec3f normal;
    };

    LuPickedPoint(LuPath path, const Place& inWorld, const Place& inObject, double distance)
        : m_path(std::move(path)), m_world(inWorld), m_object(inObject), m_distance(distance) {}

    /// In the space of the node that the action was applied to.
    const LvVec3f& getPoint() const { return m_world.point; }
    const LvVec3f& getNormal() const { return m_world.normal; }

    /// In the shape's own space.
    const LvVec3f& getObjectPoint() const { return m_object.point; }
    const LvVec3f& getObjectNormal() const { return m_object.normal; }

    /// From the start of the ray: scene units from the camera's near plane, or from the position of a ray
    /// that was set.
    double getDistance() const { return m_distance; }

    /// The way from the node that the action was applied to, down to the shape.
    LuPath* getPath() { return &m_path; }
    const LuPath* getPath() const { return &m_path; }

    /// What a node of the path has to say; null where it has not said anything. With a null node, the end of
    /// the path.
    const LuDetail* getDetail(const LuNode* node = nullptr) const;

    /// Takes the detail over, in place of the node's detail before.
    void setDetail(std::unique_ptr<LuDetail> detail, const LuNode* node);
    void setDetail(LuDetail* detail, const LuNode* node) {
        setDetail(std::unique_ptr<LuDetail>(detail), node);
    }

private:
    struct Entry {
        const LuNode* node;
        std::unique_ptr<LuDetail> detail;
    };

    LuPath m_path;
    Place m_world;
    Place m_object;
    double m_distance;
    std::vector<Entry> m_details;
};
