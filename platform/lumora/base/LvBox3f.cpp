// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvBox3f.h"

#include "platform/lumora/base/LvMatrix.h"

void LvBox3f::transform(const LvMatrix& matrix) {
    if (isEmpty())
        return;
    LvVec3f newMin = matrix.getTranslation();
    LvVec3f newMax = newMin;
    // Each column moves the box by its own share only, so the ends are found without looking at the corners.
    for (int column = 0; column < 3; ++column) {
        for (int row = 0; row < 3; ++row) {
            const float fromMin = matrix.at(column, row) * min[column];
            const float fromMax = matrix.at(column, row) * max[column];
            newMin[row] += std::min(fromMin, fromMax);
            newMax[row] += std::max(fromMin, fromMax);
        }
    }
    min = newMin;
    max = newMax;
}
