// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvMatrix.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <glm/geometric.hpp>
#include <glm/mat3x3.hpp>
#include <glm/matrix.hpp>

namespace {

/// Columns whose cosine is below this count as perpendicular: what float arithmetic leaves of a right angle.
constexpr double RIGHT_ANGLE_TOLERANCE = 1e-6;
/// A length below this share of the longest one counts as none.
constexpr double LENGTH_TOLERANCE = 1e-12;

bool isFinite(const glm::mat4& matrix) {
    for (int column = 0; column < 4; ++column)
        for (int row = 0; row < 4; ++row)
            if (!std::isfinite(matrix[column][row]))
                return false;
    return true;
}

/// True for a matrix that only scales by positive factors and translates.
bool isPlainScale(const glm::mat4& m) {
    return m[0][1] == 0 && m[0][2] == 0 && m[1][0] == 0 && m[1][2] == 0 && m[2][0] == 0 && m[2][1] == 0 &&
           m[0][0] >= 0 && m[1][1] >= 0 && m[2][2] >= 0;
}

glm::mat3 toMatrix(const LvRotation& rotation) {
    const float x = rotation.x;
    const float y = rotation.y;
    const float z = rotation.z;
    const float w = rotation.w;
    const float square = x * x + y * y + z * z + w * w;
    if (square == 0)
        return glm::mat3(1.0F);
    const float s = 2 / square;
    return {1 - s * (y * y + z * z), s * (x * y + w * z),     s * (x * z - w * y),
            s * (x * y - w * z),     1 - s * (x * x + z * z), s * (y * z + w * x),
            s * (x * z + w * y),     s * (y * z - w * x),     1 - s * (x * x + y * y)};
}

LvRotation toRotation(const glm::dmat3& m) {
    // The largest of the four is computed first; the others are quotients by it, which keeps them exact.
    const std::array<double, 4> squares = {1 + m[0][0] - m[1][1] - m[2][2], 1 - m[0][0] + m[1][1] - m[2][2],
                                           1 - m[0][0] - m[1][1] + m[2][2], 1 + m[0][0] + m[1][1] + m[2][2]};
    const auto largest = std::max_element(squares.begin(), squares.end()) - squares.begin();
    glm::dvec4 q(0.0);
    if (largest == 3) {
        q = {m[1][2] - m[2][1], m[2][0] - m[0][2], m[0][1] - m[1][0], squares[3]};
    } else if (largest == 0) {
        q = {squares[0], m[0][1] + m[1][0], m[2][0] + m[0][2], m[1][2] - m[2][1]};
    } else if (largest == 1) {
        q = {m[0][1] + m[1][0], squares[1], m[1][2] + m[2][1], m[2][0] - m[0][2]};
    } else {
        q = {m[2][0] + m[0][2], m[1][2] + m[2][1], squares[2], m[0][1] - m[1][0]};
    }
    q /= q.w < 0 ? -glm::length(q) : glm::length(q);
    return {static_cast<float>(q.x), static_cast<float>(q.y), static_cast<float>(q.z),
            static_cast<float>(q.w)};
}

/// Turns the columns p and q of `a` until they are perpendicular, and the axes with them. False when they are
/// already.
bool turnColumns(glm::dmat3& a, glm::dmat3& axes, int p, int q) {
    const double pp = glm::dot(a[p], a[p]);
    const double qq = glm::dot(a[q], a[q]);
    const double pq = glm::dot(a[p], a[q]);
    if (std::abs(pq) <= RIGHT_ANGLE_TOLERANCE * std::sqrt(pp * qq))
        return false;
    const double zeta = (qq - pp) / (2 * pq);
    const double tangent = (zeta < 0 ? -1.0 : 1.0) / (std::abs(zeta) + std::hypot(1.0, zeta));
    const double cosine = 1 / std::hypot(1.0, tangent);
    const double sine = cosine * tangent;
    for (glm::dmat3* matrix : {&a, &axes}) {
        const glm::dvec3 first = (*matrix)[p];
        const glm::dvec3 second = (*matrix)[q];
        (*matrix)[p] = cosine * first - sine * second;
        (*matrix)[q] = sine * first + cosine * second;
    }
    return true;
}

/// A unit vector perpendicular to the unit vector `axis`, as near to `wish` as can be.
glm::dvec3 makePerpendicular(const glm::dvec3& axis, const glm::dvec3& wish) {
    glm::dvec3 result = wish - axis * glm::dot(axis, wish);
    if (glm::length(result) < 0.1) {
        const glm::dvec3 other = std::abs(axis.x) < 0.6 ? glm::dvec3(1, 0, 0) : glm::dvec3(0, 1, 0);
        result = other - axis * glm::dot(axis, other);
    }
    return glm::normalize(result);
}

/// a = rotation * axes * scale * transpose(axes), where the scale stands on the diagonal. Both matrices turn
/// without mirroring; what mirrors is in the scale.
struct Polar {
    glm::dmat3 rotation{1.0};
    glm::dmat3 axes{1.0};
    glm::dvec3 scale{0.0};
};

Polar decompose(glm::dmat3 a) {
    Polar result;
    const double volume = glm::length(a[0]) * glm::length(a[1]) * glm::length(a[2]);
    // The bound keeps rounding in a flat matrix from passing for a mirror.
    const double sign = glm::determinant(a) < -RIGHT_ANGLE_TOLERANCE * volume ? -1.0 : 1.0;
    a *= sign;

    constexpr int MOST_SWEEPS = 30;
    for (int sweep = 0; sweep < MOST_SWEEPS; ++sweep) {
        const bool first = turnColumns(a, result.axes, 0, 1);
        const bool second = turnColumns(a, result.axes, 0, 2);
        const bool third = turnColumns(a, result.axes, 1, 2);
        if (!first && !second && !third)
            break;
    }

    const glm::dvec3 lengths(glm::length(a[0]), glm::length(a[1]), glm::length(a[2]));
    const int longer = lengths[0] < lengths[1] ? 1 : 0;
    const int longest = lengths[longer] < lengths[2] ? 2 : longer;
    const int next = (longest + 1) % 3;
    const int last = (longest + 2) % 3;
    const bool isCyclic = lengths[next] >= lengths[last];
    const int middle = isCyclic ? next : last;
    const int shortest = isCyclic ? last : next;
    const double length = lengths[longest];
    if (length == 0)
        return result;
    glm::dmat3 images;
    images[longest] = a[longest] / length;
    const glm::dvec3 rest = a[middle] - images[longest] * glm::dot(images[longest], a[middle]);
    images[middle] = glm::length(rest) > LENGTH_TOLERANCE * length
                         ? glm::normalize(rest)
                         : makePerpendicular(images[longest], result.axes[middle]);
    images[shortest] = glm::cross(images[longest], images[middle]) * (isCyclic ? 1.0 : -1.0);
    for (int i = 0; i < 3; ++i) {
        const double factor = glm::dot(images[i], a[i]);
        result.scale[i] = std::abs(factor) > LENGTH_TOLERANCE * length ? sign * factor : 0.0;
    }
    result.rotation = images * glm::transpose(result.axes);
    return result;
}

} // namespace

LvMatrix LvMatrix::translation(const LvVec3f& by) {
    LvMatrix result;
    result.m_matrix[3] = {by.x, by.y, by.z, 1};
    return result;
}

LvMatrix LvMatrix::scale(const LvVec3f& by) {
    LvMatrix result;
    for (int i = 0; i < 3; ++i)
        result.m_matrix[i][i] = by[i];
    return result;
}

LvMatrix LvMatrix::rotation(const LvRotation& by) { return LvMatrix(glm::mat4(toMatrix(by))); }

void LvMatrix::setTransform(const LvVec3f& translation, const LvRotation& rotation, const LvVec3f& scale,
                            const LvRotation& scaleOrientation) {
    glm::mat3 turned(0.0F);
    for (int i = 0; i < 3; ++i)
        turned[i][i] = scale[i];
    if (scaleOrientation != LvRotation()) {
        const glm::mat3 axes = toMatrix(scaleOrientation);
        turned = axes * turned * glm::transpose(axes);
    }
    if (rotation != LvRotation())
        turned = toMatrix(rotation) * turned;
    m_matrix = glm::mat4(turned);
    m_matrix[3] = {translation.x, translation.y, translation.z, 1};
}

void LvMatrix::getTransform(LvVec3f& translation, LvRotation& rotation, LvVec3f& scale,
                            LvRotation& scaleOrientation) const {
    rotation = LvRotation();
    scaleOrientation = LvRotation();
    if (!isFinite(m_matrix)) {
        translation = {};
        scale = {1, 1, 1};
        return;
    }
    translation = getTranslation();
    // Nearly all matrices of a dialog are of this kind, and they are split for each of its nodes.
    if (isPlainScale(m_matrix)) {
        scale = {m_matrix[0][0], m_matrix[1][1], m_matrix[2][2]};
        return;
    }
    const Polar polar = decompose(glm::dmat3(m_matrix));
    rotation = toRotation(polar.rotation);
    scale = {static_cast<float>(polar.scale.x), static_cast<float>(polar.scale.y),
             static_cast<float>(polar.scale.z)};
    if (polar.axes != glm::dmat3(1.0))
        scaleOrientation = toRotation(polar.axes);
}

LvVec3f LvMatrix::transformPoint(const LvVec3f& point) const {
    const glm::vec4 result = m_matrix * glm::vec4(point.x, point.y, point.z, 1);
    const float divisor = result.w == 0 ? 1 : result.w;
    return {result.x / divisor, result.y / divisor, result.z / divisor};
}

LvVec3f LvMatrix::transformDirection(const LvVec3f& direction) const {
    const glm::vec4 result = m_matrix * glm::vec4(direction.x, direction.y, direction.z, 0);
    return {result.x, result.y, result.z};
}

void LvMatrix::translateBy(const LvVec3f& by) {
    m_matrix[3] += m_matrix[0] * by.x + m_matrix[1] * by.y + m_matrix[2] * by.z;
}

void LvMatrix::scaleBy(const LvVec3f& by) {
    for (int i = 0; i < 3; ++i)
        m_matrix[i] *= by[i];
}

LvMatrix LvMatrix::inverse() const {
    LvMatrix result;
    return getInverse(result) ? result : LvMatrix();
}

bool LvMatrix::getInverse(LvMatrix& result) const {
    // In float the determinant of a matrix that scales by a millionth would already lose its digits.
    const glm::dmat4 exact(m_matrix);
    if (glm::determinant(exact) == 0)
        return false;
    const glm::mat4 inverted(glm::inverse(exact));
    if (!isFinite(inverted))
        return false;
    result.m_matrix = inverted;
    return true;
}
