// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"

#include <glm/mat4x4.hpp>

/// A 4 by 4 matrix that transforms column vectors: in `a * b` the transform b is applied first.
/// Its numbers are read and written in files column by column.
class LvMatrix {
public:
    /// The identity.
    LvMatrix() : m_matrix(1.0F) {}
    explicit LvMatrix(const glm::mat4& matrix) : m_matrix(matrix) {}

    static LvMatrix identity() { return {}; }
    static LvMatrix translation(const LvVec3f& by);
    static LvMatrix scale(const LvVec3f& by);
    static LvMatrix rotation(const LvRotation& by);

    /// Composes a matrix that scales along the axes turned by `scaleOrientation`, then rotates, then
    /// translates.
    void setTransform(const LvVec3f& translation, const LvRotation& rotation, const LvVec3f& scale,
                      const LvRotation& scaleOrientation = {});

    /// Splits the matrix into what setTransform takes. A sheared matrix gives a scale orientation, a mirrored
    /// one a negative scale; a matrix that flattens space gives a scale of 0 on that axis. A matrix that only
    /// scales by factors of 0 and above and translates comes back exactly, without rotation. Numbers that are
    /// not finite give the identity.
    void getTransform(LvVec3f& translation, LvRotation& rotation, LvVec3f& scale,
                      LvRotation& scaleOrientation) const;

    /// The point seen through the matrix, divided by its fourth coordinate where a projection makes one.
    LvVec3f transformPoint(const LvVec3f& point) const;
    /// The direction seen through the matrix, which does not move it; its length changes as the scale says.
    LvVec3f transformDirection(const LvVec3f& direction) const;
    LvVec3f getTranslation() const { return {m_matrix[3][0], m_matrix[3][1], m_matrix[3][2]}; }

    /// Appends a translation or a scale that is applied before all that the matrix holds.
    void translateBy(const LvVec3f& by);
    void scaleBy(const LvVec3f& by);

    /// The inverse; the identity for a matrix that has none.
    LvMatrix inverse() const;

    /// The inverse; false, and nothing is set, for a matrix that has none.
    bool getInverse(LvMatrix& result) const;

    const glm::mat4& glm() const { return m_matrix; }
    float& at(int column, int row) { return m_matrix[column][row]; }
    float at(int column, int row) const { return m_matrix[column][row]; }

    friend LvMatrix operator*(const LvMatrix& left, const LvMatrix& right) {
        return LvMatrix(left.m_matrix * right.m_matrix);
    }
    friend bool operator==(const LvMatrix& left, const LvMatrix& right) {
        return left.m_matrix == right.m_matrix;
    }

private:
    glm::mat4 m_matrix;
};
