// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvViewVolume.h"

/// Brings a position of the pointer, or a ray, to a shape in the scene: how a drag finds out where it goes.
///
/// The shape and all results are in the working space, which is the scene's own unless it is set.
/// Where a ray meets no point, along the plane say, or the working space has no extent, the last point is
/// given again: results are always finite.
class LvProjector {
public:
    virtual ~LvProjector() = default;

    /// What the pointer's positions refer to.
    void setViewVolume(const LvViewVolume& volume) { m_viewVolume = volume; }
    const LvViewVolume& getViewVolume() const { return m_viewVolume; }

    /// `workingToWorld` brings points of the working space to the scene.
    void setWorkingSpace(const LvMatrix& workingToWorld) { m_workingToWorld = workingToWorld; }
    const LvMatrix& getWorkingSpace() const { return m_workingToWorld; }

    /// The point under a normalised position of the screen; the last one where there is none.
    LvVec3f project(const LvVec2f& position);

    /// The same; false, and nothing is set, where there is none: the ray runs along the shape, or the point
    /// lies behind the eye.
    bool tryProject(const LvVec2f& position, LvVec3f& point);

    /// The point on a ray of the scene, such as a tracker's; the last one where there is none.
    LvVec3f intersect(const LvLine& worldRay);
    bool tryIntersect(const LvLine& worldRay, LvVec3f& point);

    /// The way from the point under one position to that under another.
    LvVec3f getVector(const LvVec2f& from, const LvVec2f& to);

    /// The way from the point of the last call to that under a position.
    LvVec3f getVector(const LvVec2f& to);

protected:
    LvProjector() = default;
    LvProjector(const LvProjector&) = default;
    LvProjector& operator=(const LvProjector&) = default;

    /// The last point, before there has been one.
    void setStart(const LvVec3f& point) { m_last = point; }

    /// The point of the shape for a ray of the scene, which may come out infinite.
    virtual bool meet(const LvLine& worldRay, LvVec3f& point) const = 0;

private:
    LvViewVolume m_viewVolume;
    LvMatrix m_workingToWorld;
    LvVec3f m_last;
};

/// To the point of a line that is nearest to the ray.
class LvLineProjector : public LvProjector {
public:
    /// In the working space. Its position is the last point until there is another.
    void setLine(const LvLine& line);
    const LvLine& getLine() const { return m_line; }

protected:
    bool meet(const LvLine& worldRay, LvVec3f& point) const override;

private:
    LvLine m_line;
};

/// To the point where the ray meets a plane.
class LvPlaneProjector : public LvProjector {
public:
    /// In the working space. Its point nearest to the origin is the last point until there is another.
    void setPlane(const LvPlane& plane);
    const LvPlane& getPlane() const { return m_plane; }

protected:
    bool meet(const LvLine& worldRay, LvVec3f& point) const override;

private:
    LvPlane m_plane;
};
