// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvGeometry.h"
#include "platform/lumora/base/LvMatrix.h"

/// What a camera sees: a pyramid without its top, or a box. The camera looks along -z of its own space, with
/// y up. Positions on the screen are normalised: (0, 0) is the lower left corner, (1, 1) the upper right one.
///
/// Numbers that make no volume (angles of 0 or pi, an aspect ratio or a depth of 0, infinities) are
/// replaced by the nearest that do: results are always finite.
class LvViewVolume {
public:
    /// The box from -1 to 1 in x and y, and from 1 to 10 units before the origin.
    LvViewVolume() = default;

    /// A pyramid about the line of sight. `heightAngle` is that from bottom to top in radians, `aspect` the
    /// width divided by the height; distances are in scene units from the eye.
    static LvViewVolume perspective(float heightAngle, float aspect, float nearDistance, float farDistance);

    /// A box about the line of sight, `height` scene units high.
    static LvViewVolume orthographic(float height, float aspect, float nearDistance, float farDistance);

    /// Moves the eye, and turns it from looking along -z.
    void setPose(const LvVec3f& position, const LvRotation& orientation);

    bool isPerspective() const { return m_isPerspective; }
    const LvVec3f& getEye() const { return m_eye; }
    const LvRotation& getOrientation() const { return m_orientation; }

    /// Where the camera looks, and its up, each of length 1.
    LvVec3f getSightDirection() const;
    LvVec3f getUpDirection() const;

    float getNearDistance() const { return m_near; }
    float getFarDistance() const { return m_far; }

    /// Width and height of the volume at its near plane, in scene units.
    LvVec2f getNearSize() const { return {m_halfWidth * 2, m_halfHeight * 2}; }

    /// The line of all points that are seen at a position of the screen. It starts on the near plane and
    /// runs away from the eye.
    LvLine projectPointToLine(const LvVec2f& point) const;

    /// The two ends of that line within the volume.
    void projectPointToLine(const LvVec2f& point, LvVec3f& nearPoint, LvVec3f& farPoint) const;

    /// Where a point of the scene is seen; z runs from 0 at the near plane to 1 at the far plane, as a depth
    /// buffer does. Points on the eye's own plane are seen nowhere and give the middle of the screen.
    LvVec3f projectToScreen(const LvVec3f& point) const;

    /// The plane that faces the eye at a distance from it.
    LvPlane getPlane(float distance) const;

    /// The point of that plane seen at a position of the screen.
    LvVec3f getPlanePoint(float distance, const LvVec2f& point) const;

    /// The length in scene units that covers the share `share` of the screen's height at `center`.
    float getWorldToScreenScale(const LvVec3f& center, float share) const;

    /// From the scene to the eye's space.
    LvMatrix getViewMatrix() const;

    /// From the eye's space to the cube from -1 to 1 that OpenGL clips to.
    LvMatrix getProjectionMatrix() const;

    friend bool operator==(const LvViewVolume&, const LvViewVolume&) = default;

private:
    LvVec3f fromEyeSpace(const LvVec3f& point) const;
    LvVec3f toEyeSpace(const LvVec3f& point) const;
    static LvViewVolume make(bool isPerspective, float halfHeight, float aspect, float nearDistance,
                             float farDistance);

    bool m_isPerspective = false;
    LvVec3f m_eye;
    LvRotation m_orientation;
    float m_near = 1;
    float m_far = 10;
    float m_halfWidth = 1; ///< At the near plane.
    float m_halfHeight = 1;
};
