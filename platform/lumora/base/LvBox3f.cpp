// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvBox3f.h"

#include "platform/lumora/base/LvMatrix.h"

namespace {

/// Moves the ends on one axis by what a box that reaches from `from` to `to` on another contributes to it.
void addShare(float factor, float from, float to, float& low, float& high) {
    const float first = factor * from;
    const float second = factor * to;
    low += std::min(first, second);
    high += std::max(first, second);
}

} // namespace

void LvBox3f::transform(const LvMatrix& matrix) {
    if (isEmpty())
        return;
    LvVec3f newMin = matrix.getTranslation();
    LvVec3f newMax = newMin;
    // Each column moves the box by its own share only, so the ends are found without looking at the corners.
    const auto addColumn = [&](const glm::vec4& column, float from, float to) {
        addShare(column.x, from, to, newMin.x, newMax.x);
        addShare(column.y, from, to, newMin.y, newMax.y);
        addShare(column.z, from, to, newMin.z, newMax.z);
    };
    addColumn(matrix.glm()[0], min.x, max.x);
    addColumn(matrix.glm()[1], min.y, max.y);
    addColumn(matrix.glm()[2], min.z, max.z);
    min = newMin;
    max = newMax;
}
