// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"

#include <algorithm>
#include <limits>

class LvMatrix;

/// A box with sides along the axes. It is empty when the minimum exceeds the maximum on an axis.
class LvBox3f {
public:
    LvVec3f min, max;

    /// An empty box.
    LvBox3f() { makeEmpty(); }
    LvBox3f(const LvVec3f& newMin, const LvVec3f& newMax) : min(newMin), max(newMax) {}

    void makeEmpty() {
        constexpr float FARTHEST = std::numeric_limits<float>::max();
        min = {FARTHEST, FARTHEST, FARTHEST};
        max = {-FARTHEST, -FARTHEST, -FARTHEST};
    }
    bool isEmpty() const { return max.x < min.x || max.y < min.y || max.z < min.z; }

    /// Lengths of the sides; zeros for an empty box.
    LvVec3f getSize() const { return isEmpty() ? LvVec3f() : max - min; }
    LvVec3f getCenter() const { return (min + max) * 0.5F; }

    void extendBy(const LvVec3f& point) {
        min = {std::min(min.x, point.x), std::min(min.y, point.y), std::min(min.z, point.z)};
        max = {std::max(max.x, point.x), std::max(max.y, point.y), std::max(max.z, point.z)};
    }
    /// An empty box extends nothing.
    void extendBy(const LvBox3f& box) {
        if (box.isEmpty())
            return;
        min = {std::min(min.x, box.min.x), std::min(min.y, box.min.y), std::min(min.z, box.min.z)};
        max = {std::max(max.x, box.max.x), std::max(max.y, box.max.y), std::max(max.z, box.max.z)};
    }
    /// The box round this box seen through an affine matrix. An empty box stays empty.
    void transform(const LvMatrix& matrix);

    friend bool operator==(const LvBox3f&, const LvBox3f&) = default;
};
