// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvVec.h"

LvRotation::LvRotation(const LvVec3f& axis, float angle) {
    const float length = axis.length();
    if (length == 0)
        return;
    const float factor = std::sin(angle / 2) / length;
    setValue(axis.x * factor, axis.y * factor, axis.z * factor, std::cos(angle / 2));
}

void LvRotation::getAxisAngle(LvVec3f& axis, float& angle) const {
    // A quaternion and its negative turn alike; the one with the positive w has the angle up to pi. A half
    // turn keeps the axis that it was made with, though its w may come out a little below 0.
    constexpr float ROUNDING = 1e-6F;
    const float sign = w < -ROUNDING ? -1.0F : 1.0F;
    axis = LvVec3f(x, y, z) * sign;
    const float length = axis.length();
    angle = 2 * std::atan2(length, std::max(w * sign, 0.0F));
    if (length > 0)
        axis *= 1 / length;
    else
        axis = {0, 0, 1};
}
