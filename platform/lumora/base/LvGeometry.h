// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"

/// A line without ends: a point on it and a direction of length 1. Without a direction (0, 0, 0) it is only
/// its point.
class LvLine {
public:
    /// The x axis.
    LvLine() = default;

    /// The line through two points, which runs from the first to the second.
    static LvLine fromPoints(const LvVec3f& from, const LvVec3f& to) {
        return fromDirection(from, to - from);
    }
    /// The line through `position` along `direction`, which may have any length.
    static LvLine fromDirection(const LvVec3f& position, const LvVec3f& direction);

    const LvVec3f& getPosition() const { return m_position; }
    const LvVec3f& getDirection() const { return m_direction; }

    /// The point of the line nearest to `point`.
    LvVec3f getClosestPoint(const LvVec3f& point) const;

    /// The points of this line and of `other` that are nearest to each other; false, and nothing is set, for
    /// parallel lines.
    bool getClosestPoints(const LvLine& other, LvVec3f& onThis, LvVec3f& onOther) const;

    friend bool operator==(const LvLine&, const LvLine&) = default;

private:
    LvVec3f m_position;
    LvVec3f m_direction{1, 0, 0};
};

/// A plane: the points whose product with the normal, of length 1, is the distance.
class LvPlane {
public:
    /// The plane z = 0.
    LvPlane() = default;

    /// `normal` may have any length but 0, which stands for the z axis; `distance` from the origin is in
    /// scene units along the normal.
    LvPlane(const LvVec3f& normal, float distance);
    /// The plane through `point`.
    LvPlane(const LvVec3f& normal, const LvVec3f& point);

    const LvVec3f& getNormal() const { return m_normal; }
    float getDistanceFromOrigin() const { return m_distance; }

    /// Distance of a point from the plane, positive on the side of the normal.
    float getDistance(const LvVec3f& point) const { return m_normal.dot(point) - m_distance; }

    /// The point where the line meets the plane; false, and nothing is set, for a line along the plane.
    bool intersect(const LvLine& line, LvVec3f& intersection) const;

    friend bool operator==(const LvPlane&, const LvPlane&) = default;

private:
    LvVec3f m_normal{0, 0, 1};
    float m_distance = 0;
};

/// The part of a window in which a scene is drawn.
class LvViewportRegion {
public:
    /// 100 by 100 pixels.
    LvViewportRegion() = default;
    LvViewportRegion(int width, int height) : m_size(width, height) {}
    explicit LvViewportRegion(const LvVec2i32& size) : m_size(size) {}

    const LvVec2i32& getSize() const { return m_size; }
    void setSize(const LvVec2i32& size) { m_size = size; }

    /// Width divided by height; 1 for a region without a height.
    float getAspectRatio() const {
        return m_size.y > 0 ? static_cast<float>(m_size.x) / static_cast<float>(m_size.y) : 1.0F;
    }

    /// The middle of a pixel, counted from (0, 0) in the lower left corner, as a share of the region: from
    /// (0, 0) to (1, 1), and beyond that for a pixel outside. (0, 0) for a region without a size.
    LvVec2f getNormalizedPosition(const LvVec2i32& pixel) const {
        const auto share = [](int place, int size) {
            return size > 0 ? (static_cast<float>(place) + 0.5F) / static_cast<float>(size) : 0.0F;
        };
        return {share(pixel.x, m_size.x), share(pixel.y, m_size.y)};
    }

    friend bool operator==(const LvViewportRegion&, const LvViewportRegion&) = default;

private:
    LvVec2i32 m_size{100, 100};
};
